#include "tools/caustics/light.h"

#include "tools/caustics/water.h"

#include <cmath>

namespace caustics {
namespace {

/// The unit vector along which sunlight travels, downwards.
struct Direction {
    float x, y, z;
};

/// Where the rays of a row reach the floor, in metres from where they entered the water, and the
/// energy of each: what its patch of the surface receives and transmits.
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

/// The part of unpolarised light that enters the water: 1 less the mean of the reflectances for the
/// two polarisations (Fresnel's equations), from the cosines of the angles to the normal.
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
        // The normal is (−slopeX, −slopeY, 1) / length. A patch receives light in proportion to its
        // area as the sun sees it. Snell's law in vector form, for incoming direction i, normal n
        // and r = 1 / index: r i + (r cos above − cos below) n.
        const float slopeX = surface.slopeX[i];
        const float slopeY = surface.slopeY[i];
        const float length = std::sqrt(1.0f + slopeX * slopeX + slopeY * slopeY);
        const float received = sun.x * slopeX + sun.y * slopeY - sun.z;
        const float cosineAbove = received / length;
        const float cosineBelow =
            std::sqrt(1.0f - ratio * ratio * (1.0f - cosineAbove * cosineAbove));
        const float bend = (ratio * cosineAbove - cosineBelow) / length;
        const float down = -(ratio * sun.z + bend);
        const float path = (depth + surface.height[i]) / down;
        landed.driftX[i] = path * (ratio * sun.x - bend * slopeX);
        landed.driftY[i] = path * (ratio * sun.y - bend * slopeY);
        landed.energy[i] = received * transmittance(cosineAbove, cosineBelow);
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
