#include "tools/caustics/waves.h"

#include "tools/caustics/random_numbers.h"
#include "tools/caustics/water.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace caustics {
namespace {

using std::numbers::pi;

constexpr double smallestWaveNumber = 1.5;
constexpr double peakWaveNumber = 3.0;
constexpr double windAzimuth = 35.0 * pi / 180.0;
constexpr double loopSeconds = 64.0 / 60.0;
constexpr double slowMotion = 0.45; // times the true speed: the loop is short and should look calm
constexpr int mostCycles = 4;       // faster waves would jump from frame to frame
constexpr std::size_t keptWaves = 64;
constexpr double focus = 0.5; // of what would focus the light exactly on the floor, see below

double waveNumber(const Wave& wave)
{
    return std::hypot(wave.alongX, wave.alongY);
}

/// From the dispersion relation of capillary-gravity waves in deep water,
/// omega² = g k + (surface tension / density) k³, to whole cycles per loop.
int cyclesOf(double number)
{
    const double k = 2.0 * pi * number / tileSide; // radians per metre
    const double omega = std::sqrt(9.81 * k + 7.28e-5 * k * k * k);
    const long cycles = std::lround(slowMotion * omega * loopSeconds / (2.0 * pi));
    return std::clamp(static_cast<int>(cycles), 1, mostCycles);
}

/// The variance of such a wave's height, up to a common factor: a power law with a peak, larger
/// along the wind than across it or against it.
double variance(const Wave& wave)
{
    const double ratio = waveNumber(wave) / peakWaveNumber;
    const double bySize = ratio < 1.0 ? ratio * ratio * ratio : std::pow(ratio, -4.0);
    const double toWind = std::cos(std::atan2(wave.alongY, wave.alongX) - windAzimuth);
    return bySize * (0.8 + 0.4 * toWind * toWind) * (toWind > 0.0 ? 1.3 : 0.7);
}

double curvature(const Wave& wave)
{
    const double k = 2.0 * pi * waveNumber(wave) / tileSide;
    return wave.amplitude * k * k;
}

std::vector<Wave> allWaves(std::uint64_t seed)
{
    RandomNumbers random(seed);
    std::vector<Wave> waves;
    for (int y = -largestWaveNumber; y <= largestWaveNumber; ++y)
        for (int x = -largestWaveNumber; x <= largestWaveNumber; ++x) {
            Wave wave{x, y, 0, 0.0, 0.0};
            const double number = waveNumber(wave);
            if (number < smallestWaveNumber || number > largestWaveNumber)
                continue;
            wave.cycles = cyclesOf(number);
            // Rayleigh-distributed, as the amplitudes of a Gaussian sea are.
            wave.amplitude = std::sqrt(-2.0 * variance(wave) * std::log(random.next()));
            wave.phase = 2.0 * pi * random.next();
            waves.push_back(wave);
        }
    return waves;
}

/// Scales the waves by their root mean square curvature. A surface of curvature c focuses light at
/// the depth 1 / (c · (1 − 1/index)); `focus` 1 would put the mean curvature's focus on the floor.
void bringToFocus(std::vector<Wave>& waves)
{
    double meanSquare = 0.0;
    for (const Wave& wave : waves)
        meanSquare += 0.5 * curvature(wave) * curvature(wave);
    const double wanted = 2.0 * focus / (waterDepth * (1.0 - 1.0 / refractiveIndex));
    for (Wave& wave : waves)
        wave.amplitude *= wanted / std::sqrt(meanSquare);
}

} // namespace

std::vector<Wave> makeWaves(std::uint64_t seed)
{
    std::vector<Wave> waves = allWaves(seed);
    std::stable_sort(waves.begin(), waves.end(), [](const Wave& left, const Wave& right) {
        return curvature(left) > curvature(right);
    });
    waves.resize(keptWaves);
    bringToFocus(waves);
    return waves;
}

} // namespace caustics
