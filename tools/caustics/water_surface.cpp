#include "tools/caustics/water_surface.h"

#include "tools/caustics/water.h"

#include <array>
#include <cmath>
#include <complex>
#include <numbers>

namespace caustics {
namespace {

using std::numbers::pi;
using Complex = std::complex<double>;

/// Along a row, all waves with the same wave number along x add up to one harmonic, the real part
/// of factor · e^(i · 2π · number · x / tileSide), with a factor for each quantity. Summing 13
/// harmonics is much cheaper than 64 waves at every point.
struct Harmonic {
    Complex height;
    Complex slopeX;
    Complex slopeY;
};

using Harmonics = std::array<Harmonic, largestWaveNumber + 1>;

Harmonics harmonicsOfRow(std::span<const Wave> waves, int frame, double rowPosition)
{
    constexpr Complex derivative(0.0, 2.0 * pi / tileSide); // d/dx for one wave per tile
    Harmonics harmonics{};
    for (const Wave& wave : waves) {
        const double turns = wave.alongY * rowPosition -
                             static_cast<double>(wave.cycles * frame % frameCount) / frameCount;
        const Complex factor = std::polar(wave.amplitude, 2.0 * pi * turns + wave.phase);
        Harmonic& harmonic = harmonics[static_cast<std::size_t>(wave.alongX)];
        harmonic.height += factor;
        harmonic.slopeX += factor * derivative * static_cast<double>(wave.alongX);
        harmonic.slopeY += factor * derivative * static_cast<double>(wave.alongY);
    }
    return harmonics;
}

void addHarmonic(Complex factor, std::span<const float> cosine, std::span<const float> sine,
                 std::vector<float>& sum)
{
    const auto real = static_cast<float>(factor.real());
    const auto imaginary = static_cast<float>(factor.imag());
    for (std::size_t column = 0; column < sum.size(); ++column)
        sum[column] += real * cosine[column] - imaginary * sine[column];
}

} // namespace

WaterSurface::WaterSurface(std::span<const Wave> someWaves, int pointsPerSide)
    : waves(someWaves.begin(), someWaves.end()),
      points(pointsPerSide)
{
    for (Wave& wave : waves)
        if (wave.alongX < 0) // the same wave, since cos(−a) = cos(a)
            wave = {-wave.alongX, -wave.alongY, -wave.cycles, wave.amplitude, -wave.phase};
    for (int number = 0; number <= largestWaveNumber; ++number)
        for (int column = 0; column < points; ++column) {
            const double angle = 2.0 * pi * number * (column + 0.5) / points;
            cosines.push_back(static_cast<float>(std::cos(angle)));
            sines.push_back(static_cast<float>(std::sin(angle)));
        }
}

void WaterSurface::readRow(int frame, int row, SurfaceRow& out) const
{
    const auto columns = static_cast<std::size_t>(points);
    for (std::vector<float>* values : {&out.height, &out.slopeX, &out.slopeY})
        values->assign(columns, 0.0f);
    const Harmonics harmonics = harmonicsOfRow(waves, frame, (row + 0.5) / points);
    for (std::size_t number = 0; number < harmonics.size(); ++number) {
        const auto cosine = std::span(cosines).subspan(number * columns, columns);
        const auto sine = std::span(sines).subspan(number * columns, columns);
        addHarmonic(harmonics[number].height, cosine, sine, out.height);
        addHarmonic(harmonics[number].slopeX, cosine, sine, out.slopeX);
        addHarmonic(harmonics[number].slopeY, cosine, sine, out.slopeY);
    }
}

} // namespace caustics
