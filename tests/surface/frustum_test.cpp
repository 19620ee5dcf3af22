#include "surface/bounding_box.h"
#include "surface/view_frustum.h"
#include "tests/support/surface_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

struct Case {
    const char* what;
    BoundingBox box;
    std::int32_t lastBefore;
    std::uint8_t inherited;
    int result;
    std::int32_t lastAfter;
};

// In a view that reaches from -10 to 10 on each axis.
const Case cases[] = {
    {"inside", {Vec3(-1), Vec3(1)}, -1, 0, 63, -1},
    {"across the bottom", {{-1, -11, -1}, Vec3(1)}, -1, 0, 59, -1},
    {"beyond the top", {{-1, 11, -1}, {1, 12, 1}}, -1, 0, 0, 3},
    {"touching the top from outside", {{-1, 10, -1}, {1, 12, 1}}, -1, 0, 55, -1},
    {"touching the top from inside", {{-1, 9, -1}, {1, 10, 1}}, -1, 0, 63, -1},
    {"across all planes", {Vec3(-11), Vec3(11)}, -1, 0, 0, -1},
    {"across all planes but one known", {Vec3(-11), Vec3(11)}, -1, 4, 4, -1},
    // Beyond right and top: which of the two rejects tells which was evaluated first.
    {"in order", {Vec3(11), Vec3(12)}, -1, 0, 0, 0},
    {"the last rejecting plane first", {Vec3(11), Vec3(12)}, 3, 0, 0, 3},
    {"the last rejecting plane known", {Vec3(11), Vec3(12)}, 3, 8, 0, 0},
    {"the last rejecting plane no more", {Vec3(-1), Vec3(1)}, 3, 0, 63, 3},
    {"no known plane evaluated", {Vec3(11), Vec3(12)}, 3, 63, 63, 3},
};

} // namespace

TEST(Frustum, ClassifiesBoxes)
{
    surface_world::seeBox(10);
    for (const Case& c : cases) {
        BoundingBox box;
        box.lastCullingPlane = c.lastBefore;
        box.copyExtent(c.box); // and nothing else
        EXPECT_EQ(viewFrustum.classifyBox(box, c.inherited), c.result) << c.what;
        EXPECT_EQ(box.lastCullingPlane, c.lastAfter) << c.what;
    }
    const auto& [low_x, high_x, low_y, high_y, low_z, high_z] = viewFrustum.selectors[0];
    EXPECT_EQ((std::array{low_x, high_x, low_y, high_y, low_z, high_z}),
              (std::array{0u, 1u, 1u, 0u, 1u, 0u})); // the normal is (1, 0, 0)
}

TEST(Frustum, ClassifiesOctantsAsItDoesTheirBoxes)
{
    for (int i = 0; i < 2000; ++i) {
        if (i < 1000)
            surface_world::seeWindow(4.0f / 3.0f);
        else
            surface_world::seeBox(450); // octants touch it
        const auto at = [](int step) { return 300.0f * static_cast<float>(step - 5); };
        const Vec3 low(at(i % 10), at(i / 10 % 10), at(i / 100 % 10));
        BoundingBox cell(low, low + Vec3(300));
        cell.lastCullingPlane = i % 7 - 1;
        const bool noneBefore = cell.lastCullingPlane == -1;
        const auto inherited = static_cast<std::uint8_t>(i % 3 == 0 ? 0b100101 : 0);
        const OctantMasks masks = viewFrustum.classifyOctants(cell, 0xff, inherited);
        const unsigned seen = octantsWith(masks[0] != 0, masks[1] != 0);
        EXPECT_EQ(noneBefore && cell.lastCullingPlane == -1, noneBefore && seen == 0xff) << i;
        for (std::size_t k = 0; k < cornerCount; ++k) {
            const Vec3 corner = cornerPosition(cell, k);
            const Vec3 middle = low + Vec3(150);
            BoundingBox octant({std::min(corner.x, middle.x), std::min(corner.y, middle.y),
                                std::min(corner.z, middle.z)},
                               {std::max(corner.x, middle.x), std::max(corner.y, middle.y),
                                std::max(corner.z, middle.z)});
            EXPECT_EQ(maskOf(masks, k), viewFrustum.classifyBox(octant, inherited))
                << i << ' ' << k;
        }
    }
}
