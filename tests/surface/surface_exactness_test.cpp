#include "surface/metaball_surface.h"
#include "tests/support/allocations.h"
#include "tests/support/literal_surface.h"
#include "tests/support/surface_world.h"
#include "tests/support/vertex_sink.h"
#include "zrk/cexception.h"
#include "zrk/shaders/shader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace {

/// Compares what a surface sends with what the literal version sends, bit for bit.
class SurfaceExactness : public ::testing::Test {
protected:
    MetaballSurface surface;
    zrk::Shader shader;

    SurfaceExactness()
    {
        surface_world::setUp(surface, 1);
        surface_world::seeBox(1e6f);
        surface.shader = &shader;
    }

    void setBalls(const std::vector<Sphere>& balls)
    {
        surface.setBallCount(static_cast<std::uint32_t>(balls.size()));
        for (std::size_t i = 0; i < balls.size(); ++i)
            surface.balls[i].set(balls[i].centre, balls[i].radius);
    }

    /// Yields the number of vertices sent.
    std::size_t expectSame(const std::string& what)
    {
        vertex_sink::keep();
        drawLiterally(surface);
        const std::vector<vertex_sink::Vertex> expected = vertex_sink::take();
        vertex_sink::keep();
        surface.polygonizeAndDraw();
        const std::vector<vertex_sink::Vertex> sent = vertex_sink::take();
        EXPECT_TRUE(
            std::ranges::equal(std::as_bytes(std::span(sent)), std::as_bytes(std::span(expected))))
            << what;
        EXPECT_TRUE(std::ranges::all_of(sent, [&](const vertex_sink::Vertex& v) {
            const Vec3 p(v.x, v.y, v.z);
            const Vec3 texCoord = surface.surfaceTexCoord(p, surface.fieldAt(p));
            return std::bit_cast<std::uint32_t>(texCoord.x) == std::bit_cast<std::uint32_t>(v.s) &&
                   std::bit_cast<std::uint32_t>(texCoord.y) == std::bit_cast<std::uint32_t>(v.t);
        })) << what;
        return expected.size();
    }

    std::size_t leavesBelow(const OctreeNode* node, std::uint32_t depth)
    {
        if (node == nullptr || depth == surface.octree.maxDepth)
            return node == nullptr ? 0 : 1;
        std::size_t leaves = 0;
        for (const OctreeNode* child : node->children)
            leaves += leavesBelow(child, depth + 1);
        return leaves;
    }
};

struct Case {
    const char* what;
    std::vector<Sphere> balls;
    bool empty;
};

// In a region of ±1200 that is halved five times: cells end at multiples of 75.
const Case cases[] = {
    {"no balls", {}, true},
    {"a sphere that touches cells", {{300, {}}, {150, {600, 0, 0}}}, false},
    {"balls that touch each other's centre", {{300, {}}, {300, {300, 0, 0}}}, false},
    {"balls in one place", {{400, {37, 5, 9}}, {400, {37, 5, 9}}, {150, {37, 5, 9}}}, false},
    {"a surface through corners", {{75, {-75, 0, 75}}, {106.06602f, {300, 300, 300}}}, false},
    {"balls outside of the region", {{500, {1300, 0, 0}}, {400, {0, 9000, 0}}}, false},
    {"a ball much smaller than a cell, about a corner", {{9, {75, 150, -75}}}, false},
    {"balls much smaller than a cell, within", {{9, {30, 30, 30}}, {30, {-37, 40, 40}}}, true},
    {"small balls around a large one", {{500, {}}, {40, {300, 0, 0}}, {60, {0, 300, 75}}}, false},
    {"a ball that holds the region", {{9000, {}}}, true},
    {"the region's corners alone outside", {{2300, {}}}, false},
    {"a ball of no size, NaN at its centre", {{300, {}}, {0, {75, 150, 0}}}, false},
    {"corners where the field is 0.5625", {{400, {25, 0, 0}}, {400, {-1000, -1200, -1200}}}, false},
};

} // namespace

TEST_F(SurfaceExactness, HoldsForRandomFramesAtEveryDepth)
{
    std::size_t sent = 0;
    for (std::uint32_t seed = 0; seed < 49; ++seed) {
        surface_world::setUp(surface, seed);
        surface.depthSetting = seed % 7 + 1;
        surface.nodePoolSize = seed % 5 == 0 ? seed + 1 : 50000; // too small a pool is used again
        surface_world::seeBox(1e6f);
        sent += expectSame("whole, seed " + std::to_string(seed));
        surface_world::seeWindow(4.0f / 3.0f);
        expectSame("in view, seed " + std::to_string(seed));
    }
    EXPECT_GT(sent, 100000u);
}

TEST_F(SurfaceExactness, HoldsForBallsOfEveryKind)
{
    for (const Case& c : cases) {
        setBalls(c.balls);
        for (const float threshold : {0.5f, 0.02f, 1.3f, 0.5625f}) {
            surface.threshold = threshold;
            const std::size_t sent = expectSame(c.what);
            EXPECT_TRUE(threshold != 0.5f || (sent == 0) == c.empty) << c.what;
            surface.depthSetting = 0;
            expectSame(c.what);
            surface.depthSetting = 5;
        }
    }
}

TEST_F(SurfaceExactness, HoldsWhereAGradientStepIsLarge)
{
    // Balls and cells only a few steps across: samples before a vertex often leave its cell, and
    // meet balls that the cell does not.
    std::mt19937 random(1);
    std::uniform_real_distribution<float> coordinate(-5, 5);
    std::uniform_real_distribution<float> radius(0.5f, 2);
    surface.region = BoundingBox({-5, -4, -5}, {5, 4, 6});
    for (int frame = 0; frame < 20; ++frame) {
        surface.setBallCount(70);
        for (std::uint32_t i = 0; i < surface.ballCount; ++i)
            surface.balls[i].set(Vec3(coordinate(random), coordinate(random), coordinate(random)),
                                 radius(random));
        EXPECT_GT(expectSame("frame " + std::to_string(frame)), 0u);
    }
}

TEST_F(SurfaceExactness, HoldsForBallsWrittenWithoutTheirFalloffAndBounds)
{
    for (std::uint32_t i = 0; i < surface.ballCount; ++i) {
        surface.balls[i].radius *= i % 3 == 0 ? 1.5f : 0.6f;
        surface.balls[i].centre += Vec3(200);
    }
    EXPECT_GT(expectSame("written"), 0u);
}

TEST_F(SurfaceExactness, TheTreeHoldsTheLeavesDrawn)
{
    for (const std::uint32_t seed : {2u, 3u}) {
        surface_world::setUp(surface, seed);
        vertex_sink::keep();
        surface.polygonizeAndDraw();
        EXPECT_EQ(leavesBelow(surface.octree.root, 0), vertex_sink::take().back().leaf);
    }
    const OctreeNode* const root = surface.octree.root;
    surface.threshold = 1.01f; // more than the field of balls that lie apart
    setBalls({{400, Vec3(600)}, {400, Vec3(-600)}});
    surface.polygonizeAndDraw();
    EXPECT_EQ(surface.octree.root, root); // the pool begins anew
    EXPECT_EQ(std::ranges::count(root->children, nullptr), 8);
}

TEST_F(SurfaceExactness, LaterFramesAllocateNothing)
{
    surface.polygonizeAndDraw();
    const std::size_t before = allocations::count();
    for (std::uint32_t i = 0; i < surface.ballCount; ++i)
        surface.balls[i].set(Vec3(100.0f * static_cast<float>(i)), 300);
    surface.polygonizeAndDraw();
    EXPECT_EQ(allocations::count(), before);
}

TEST_F(SurfaceExactness, HoldsAfterAFrameWithoutMemory)
{
    // The node pool and the balls' three arrays fail in turn, between two frames of other sizes.
    for (std::size_t ordinal = 1; ordinal <= 5; ++ordinal) {
        surface_world::setUp(surface, 1);
        surface.nodePoolSize = 50000;
        EXPECT_GT(expectSame("before allocation " + std::to_string(ordinal)), 0u);
        surface.depthSetting = 3;
        surface.nodePoolSize = 1000;
        setBalls({{400, {}}});
        const allocations::Failure failure(ordinal);
        if (ordinal < 5)
            EXPECT_THROW(surface.polygonizeAndDraw(), zrk::Cexception) << ordinal;
        else
            EXPECT_NO_THROW(surface.polygonizeAndDraw());
    }
}
