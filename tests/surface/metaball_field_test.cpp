#include "surface/metaball_surface.h"

#include <gtest/gtest.h>

namespace {

void expectTexCoord(const MetaballSurface& surface, const Vec3& p, float s, float t)
{
    // The field changes by about 3e-4 within a step, and is kept to 6e-8.
    constexpr float tolerance = 1e-3f;
    const Vec3 texCoord = surface.surfaceTexCoord(p, surface.fieldAt(p));
    EXPECT_NEAR(texCoord.x, s, tolerance);
    EXPECT_NEAR(texCoord.y, t, tolerance);
}

} // namespace

TEST(MetaballField, FallsFromOneAtTheCentreToNothingAtTheRadius)
{
    MetaballSurface surface;
    surface.setBallCount(1);
    EXPECT_EQ(surface.fieldAt({0, 0, 0}), 1);
    EXPECT_EQ(surface.fieldAt({200, 0, 0}), 0.5625f);
    EXPECT_EQ(surface.fieldAt({0, 400, 0}), 0);
    EXPECT_EQ(surface.fieldAt({0, 0, -500}), 0);
}

TEST(MetaballField, IsTheSumOfItsBalls)
{
    MetaballSurface surface;
    surface.setBallCount(2);
    surface.balls[0].set({-150, 0, 0}, 400);
    surface.balls[1].set({150, 0, 0}, 400);
    EXPECT_EQ(surface.fieldAt({}), 1.47705078125f);
    surface.setBallCount(0);
    EXPECT_EQ(surface.fieldAt({}), 0);
}

TEST(MetaballField, TexCoordFollowsTheOutwardDirection)
{
    MetaballSurface surface;
    surface.setBallCount(1);
    expectTexCoord(surface, {216, 0, 0}, 1, 0.5f);
    expectTexCoord(surface, {0, -216, 0}, 0.5f, 0);
    expectTexCoord(surface, {0, 0, -216}, 0.5f, 0.5f);
    expectTexCoord(surface, {0, 900, 0}, 0.5f, 0.5f); // flat
}

TEST(Metaball, TouchingABoxIsReachingIt)
{
    Metaball ball;
    ball.set({3, 4, 0}, 5);
    EXPECT_TRUE(BoundingBox(Vec3(-2), Vec3(0)).intersects(ball.bounds));
    EXPECT_FALSE(BoundingBox({-2, -2, -2}, {0, -0.01f, 0}).intersects(ball.bounds));
    EXPECT_TRUE(BoundingBox(Vec3(-20), Vec3(20)).intersects(ball.bounds));
}
