#include "tools/caustics/light.h"

#include "tools/caustics/water.h"

#include <cmath>

namespace caustics {
namespace {

/// The sunlight's direction, downwards, of length 1.
struct Direction {
    float x, y, z;
};

/// Where the rays of a row come down, in metres from where they entered the water, and the
/// light that each brings: what its patch of surface catches and lets through.
struct LandedRow {
    std::vector<float> driftX;
    std::vector<float> driftY;
    std::vector<float> energy;
};

Direction sunlight()
{
    return {static_cast<float>(-std::sin(sunZenith) * std::cos(sunAzimuth)),
            static_cast<float>(-std::sin(sunZenith) * std::sin(sunAzimuth)),
            static_cast<float>(-std::cos(sunZenith))};
}

/// What part of unpolarised light passes into the water.
float transmittance(float cosineAbove, float cosineBelow)
{
    constexpr auto index = static_cast<float>(refractiveIndex);
    const float across = (cosineAbove - index * cosineBelow) / (cosineAbove + index * cosineBelow);
    const float along = (index * cosineAbove - cosineBelow) / (index * cosineAbove + cosineBelow);
    return 1.0f - 0.5f * (across * across + along * along);
}

void refractRow(const SurfaceRow& surface, Direction sun, LandedRow& landed)
{
    constexpr auto ratio = static_cast<float>(1.0 / refractiveIndex);
    constexpr auto depth = static_cast<float>(waterDepth);
    for (std::size_t i = 0; i < surface.height.size(); ++i) {
        // The normal is (−slopeX, −slopeY, 1)/length; a patch catches light by its projected area.
        const float slopeX = surface.slopeX[i];
        const float slopeY = surface.slopeY[i];
        const float length = std::sqrt(1.0f + slopeX * slopeX + slopeY * slopeY);
        const float caught = sun.x * slopeX + sun.y * slopeY - sun.z;
        const float cosineAbove = caught / length;
        const float cosineBelow =
            std::sqrt(1.0f - ratio * ratio * (1.0f - cosineAbove * cosineAbove));
        const float bend = (ratio * cosineAbove - cosineBelow) / length;
        const float down = -(ratio * sun.z + bend);
        const float path = (depth + surface.height[i]) / down;
        landed.driftX[i] = path * (ratio * sun.x - bend * slopeX);
        landed.driftY[i] = path * (ratio * sun.y - bend * slopeY);
        landed.energy[i] = caught * transmittance(cosineAbove, cosineBelow);
    }
}

} // namespace

Tile castLight(const WaterSurface& water, int frame)
{
    const int points = water.pointsPerSide();
    Tile floor(points / raysPerTexel);
    const auto texelsPerMetre = static_cast<float>(floor.side() / tileSide);
    const auto columns = static_cast<std::size_t>(points);
    SurfaceRow surface;
    LandedRow landed{std::vector<float>(columns), std::vector<float>(columns),
                     std::vector<float>(columns)};
    for (int row = 0; row < points; ++row) {
        water.readRow(frame, row, surface);
        refractRow(surface, sunlight(), landed);
        const float y = (static_cast<float>(row) + 0.5f) / raysPerTexel;
        for (std::size_t i = 0; i < columns; ++i) {
            const float x = (static_cast<float>(i) + 0.5f) / raysPerTexel;
            floor.add(x + landed.driftX[i] * texelsPerMetre, y + landed.driftY[i] * texelsPerMetre,
                      landed.energy[i]);
        }
    }
    floor.scale(1.0f / (raysPerTexel * raysPerTexel));
    return floor;
}

double refractedZenith()
{
    return std::asin(std::sin(sunZenith) / refractiveIndex);
}

} // namespace caustics
