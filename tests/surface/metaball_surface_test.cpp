#include "surface/metaball_surface.h"
#include "tests/support/call_text.h"
#include "tests/support/gl_recorder.h"
#include "tests/support/surface_world.h"
#include "zrk/shaders/shader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace {

/// A surface of one ball, and what a frame of it sends.
class SurfaceFrame : public ::testing::Test {
protected:
    MetaballSurface surface;
    zrk::Shader shader;

    SurfaceFrame()
    {
        surface_world::seeBox(1e6f);
        surface.setBallCount(1);
        surface.shader = &shader;
    }

    std::vector<std::string> frame()
    {
        gl_recorder::reset();
        surface.polygonizeAndDraw();
        return gl_recorder::takeCalls();
    }
};

} // namespace

TEST(MetaballSurface, StartsWithBallsOf400AndADepthOf4)
{
    MetaballSurface surface;
    EXPECT_EQ(surface.balls[surface.ballCount - 1].bounds.radius, 400);
    EXPECT_EQ((std::array{surface.ballCount, surface.depthSetting, surface.octree.maxDepth,
                          surface.nodePoolSize}),
              (std::array{25u, 4u, 3u, 50000u}));
    EXPECT_EQ(surface.kind(), 6);
    EXPECT_TRUE(surface.query(0));
}

TEST_F(SurfaceFrame, OfARegionOutOfViewMakesNoCall)
{
    surface.region = BoundingBox({2e6f, 0, 0}, {3e6f, 1, 1});
    surface.shader = nullptr; // not even looked at
    EXPECT_TRUE(frame().empty());
}

TEST_F(SurfaceFrame, WithoutSurfaceAppliesTheShaderOnly)
{
    surface.balls[0].set(Vec3(5000), 400);
    const std::vector<std::string> calls = frame();
    gl_recorder::reset();
    shader.apply();
    EXPECT_EQ(calls, gl_recorder::calls());
    EXPECT_FALSE(calls.empty());
}

TEST_F(SurfaceFrame, SendsALeafOfCaseOneAsOneTriangle)
{
    // The region is the leaf. Its corner 0 is 692.8 away from the ball and the next three are 600,
    // the surface is 0.541 R = 649.4: only corner 0 is outside.
    surface.depthSetting = 0;
    surface.balls[0].set(Vec3(100), 1200);
    std::vector<std::string> calls = frame();
    calls.erase(calls.begin(), std::ranges::find(calls, "glBegin(GL_TRIANGLES)"));

    std::vector<std::string> expected{"glBegin(GL_TRIANGLES)"};
    const Vec3 edges[][2] = {{Vec3(-300), {300, -300, -300}},
                             {Vec3(-300), {-300, 300, -300}},
                             {{-300, -300, 300}, Vec3(-300)}};
    for (const auto& [pa, pb] : edges) {
        Vec3 p;
        float value = 0;
        surface.interpolateEdge(pa, pb, surface.fieldAt(pa), surface.fieldAt(pb), p, value);
        // F is 4/9 at corner 0 and 9/16 at its neighbours: 8/17 of the way of 600.
        EXPECT_NEAR((p - Vec3(-300)).length(), 600.0f * 8.0f / 17.0f, 0.001f);
        const Vec3 texCoord = surface.surfaceTexCoord(p, value);
        expected.push_back(callText("glTexCoord2f", texCoord.x, texCoord.y));
        expected.push_back(callText("glVertex3f", p.x, p.y, p.z));
    }
    expected.emplace_back("glEnd()");
    EXPECT_EQ(calls, expected);
}
