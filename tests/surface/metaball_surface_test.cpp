#include "surface/metaball_surface.h"
#include "tests/support/gl_recorder.h"
#include "tests/support/surface_world.h"
#include "zrk/shaders/shader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
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

std::vector<Vec3> vertices(const std::vector<std::string>& calls)
{
    std::vector<Vec3> found;
    for (const std::string& call : calls) {
        Vec3 p;
        if (std::sscanf(call.c_str(), "glVertex3f(%f, %f, %f)", &p.x, &p.y, &p.z) == 3)
            found.push_back(p);
    }
    return found;
}

} // namespace

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
    ASSERT_EQ(calls.size(), 8u);
    EXPECT_EQ(calls.back(), "glEnd()");
    for (std::size_t i = 1; i < 7; ++i)
        EXPECT_EQ(calls[i].find(i % 2 == 1 ? "glTexCoord2f(" : "glVertex3f("), 0u) << calls[i];

    // F is 4/9 at corner 0 and 9/16 at its neighbours: 8/17 of the way of 600.
    const float crossing = -300.0f + 600.0f * 8.0f / 17.0f;
    const Vec3 expected[] = {
        {crossing, -300, -300}, {-300, crossing, -300}, {-300, -300, crossing}};
    const std::vector<Vec3> triangle = vertices(calls);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_LT((triangle[i] - expected[i]).length(), 0.001f) << i;
}

TEST_F(SurfaceFrame, IsTheSphereOfABallThatMoved)
{
    // Within a leaf edge of 37.5 the field bends by at most 1.8e-5 per unit², which moves a
    // crossing by 37.5² / 8 * 1.8e-5 / 0.0038 (the slope) = 0.9 at most.
    constexpr float bend = 0.9f;
    surface.balls[0].set({5000, 0, 0}, 400);
    surface.balls[0].centre = Vec3(-80, 0, 0); // its bounds are left behind
    const std::vector<Vec3> sphere = vertices(frame());
    EXPECT_GT(sphere.size(), 1000u);
    for (const Vec3& p : sphere)
        EXPECT_NEAR((p - surface.balls[0].centre).length(), 216.48f, bend);
}
