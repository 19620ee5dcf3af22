#include "tests/support/surface_world.h"

#include "surface/metaball_surface.h"
#include "surface/view_frustum.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

Frustum frustum;

void see(const std::array<Plane, Frustum::planeCount>& planes)
{
    frustum.planes = planes;
    frustum.normalizePlanes();
    frustum.testedPlanes = frustum.planes;
    frustum.refreshSelectors();
}

} // namespace

constinit Frustum& viewFrustum = frustum;

void surface_world::seeBox(float half)
{
    see({{{-half, {1, 0, 0}},
          {-half, {-1, 0, 0}},
          {-half, {0, -1, 0}},
          {-half, {0, 1, 0}},
          {-half, {0, 0, -1}},
          {-half, {0, 0, 1}}}});
}

void surface_world::seeWindow(float aspect)
{
    // The eye stands at z = -500 and looks along z; depth is z + 500.
    const float f = std::atan(45.0f);
    see({{{-500, {f / aspect, 0, -1}},
          {-500, {-f / aspect, 0, -1}},
          {-500, {0, -f, -1}},
          {-500, {0, f, -1}},
          {-499, {0, 0, -1}},
          {-14500, {0, 0, 1}}}});
}

void surface_world::setUp(MetaballSurface& surface, std::uint32_t seed, float time,
                          std::uint32_t ballCount)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> amplitude(0.0f, 800.0f);
    std::uniform_real_distribution<float> frequency(-2.0f, 2.0f);
    std::uniform_real_distribution<float> phase(0.0f, 6.2831853f);
    std::uniform_real_distribution<float> radius(150.0f, 500.0f);
    surface.region = BoundingBox(Vec3(-1200.0f), Vec3(1200.0f));
    surface.depthSetting = 5;
    surface.threshold = 0.5f;
    surface.setBallCount(ballCount);
    const auto coordinate = [&] {
        const float extent = amplitude(random);
        const float start = phase(random);
        return extent * std::sin((time + start) * frequency(random));
    };
    for (std::uint32_t i = 0; i < ballCount; ++i) {
        const float x = coordinate();
        const float y = coordinate();
        const float z = coordinate();
        surface.balls[i].set({x, y, z}, radius(random));
    }
}
