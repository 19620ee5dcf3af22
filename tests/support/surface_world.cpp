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

void surface_world::setUp(MetaballSurface& surface, std::uint32_t seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> amplitude(0.0f, 800.0f);
    std::uniform_real_distribution<float> angle(0.0f, 6.2831853f);
    std::uniform_real_distribution<float> radius(150.0f, 500.0f);
    surface.region = BoundingBox(Vec3(-1200.0f), Vec3(1200.0f));
    surface.depthSetting = 5;
    surface.threshold = 0.5f;
    surface.setBallCount(12);
    const auto coordinate = [&] { return amplitude(random) * std::sin(angle(random)); };
    for (std::uint32_t i = 0; i < surface.ballCount; ++i) {
        const float x = coordinate();
        const float y = coordinate();
        const float z = coordinate();
        surface.balls[i].set({x, y, z}, radius(random));
    }
}
