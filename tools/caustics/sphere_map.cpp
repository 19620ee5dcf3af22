#include "tools/caustics/sphere_map.h"

#include "tools/caustics/tone.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace caustics {
namespace {

constexpr int samplesPerTexel = 3; // along a side: box-filtered supersampling
constexpr float rimShade = 0.6f;   // times the middle's brightness

/// The light at (s, t), the disc having radius 1 about (0, 0). A point of the disc at this radius
/// is asin(radius) from the pole, and the rim, pi / 2 from it, is half a tile away.
float lightAt(const Tile& light, float s, float t)
{
    const float radius = std::sqrt(s * s + t * t);
    const float angle = std::asin(std::min(radius, 1.0f));
    const float stretch = radius > 0.0f ? angle / (std::numbers::pi_v<float> * radius) : 0.0f;
    const auto side = static_cast<float>(light.side());
    return light.sample(side * (0.5f + s * stretch), side * (0.5f + t * stretch));
}

float shadeAt(float s, float t)
{
    const float outward = std::sqrt(1.0f - std::min(s * s + t * t, 1.0f));
    return std::lerp(rimShade, 1.0f, outward);
}

/// -1 to 1 across the picture, for a position in texels from its edge.
float discCoordinate(float position, int side)
{
    return 2.0f * position / static_cast<float>(side) - 1.0f;
}

std::uint8_t levelAt(const Tile& light, int column, int row, int side)
{
    float sum = 0.0f;
    for (int i = 0; i < samplesPerTexel; ++i)
        for (int j = 0; j < samplesPerTexel; ++j) {
            const float x = (static_cast<float>(j) + 0.5f) / samplesPerTexel;
            const float y = (static_cast<float>(i) + 0.5f) / samplesPerTexel;
            sum += lightAt(light, discCoordinate(static_cast<float>(column) + x, side),
                           discCoordinate(static_cast<float>(row) + y, side));
        }
    const float brightness = toneOf(sum / (samplesPerTexel * samplesPerTexel)) *
                             shadeAt(discCoordinate(static_cast<float>(column) + 0.5f, side),
                                     discCoordinate(static_cast<float>(row) + 0.5f, side));
    return static_cast<std::uint8_t>(std::lround(255.0f * brightness));
}

} // namespace

GreyPicture wrapOnSphere(const Tile& light, int side)
{
    GreyPicture picture{.side = side, .levels = {}};
    for (int row = 0; row < side; ++row)
        for (int column = 0; column < side; ++column)
            picture.levels.push_back(levelAt(light, column, row, side));
    return picture;
}

} // namespace caustics
