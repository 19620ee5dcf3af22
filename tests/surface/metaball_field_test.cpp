#include "surface/metaball_surface.h"

#include <gtest/gtest.h>

TEST(MetaballField, IsTheSumOfBallsThatFallFromOneToNothing)
{
    MetaballSurface surface;
    surface.setBallCount(2);
    surface.balls[1].set({10000, 0, 0}, 400);
    EXPECT_EQ(surface.fieldAt({0, 0, 0}), 1);
    EXPECT_EQ(surface.fieldAt({200, 0, 0}), 0.5625f);
    EXPECT_EQ(surface.fieldAt({0, 400, 0}), 0);
    EXPECT_EQ(surface.fieldAt({0, 0, -500}), 0);
    surface.balls[1].set({300, 0, 0}, 400);
    EXPECT_EQ(surface.fieldAt({150, 0, 0}), 1.47705078125f);
    surface.setBallCount(0);
    EXPECT_EQ(surface.fieldAt({}), 0);
}

TEST(BoundingBox, MeetsASphereThatTouchesIt)
{
    const Sphere sphere{5, {3, 4, 0}};
    EXPECT_TRUE(BoundingBox(Vec3(-2), Vec3(0)).intersects(sphere));
    EXPECT_FALSE(BoundingBox({-2, -2, -2}, {0, -0.01f, 0}).intersects(sphere));
    EXPECT_TRUE(BoundingBox(Vec3(-20), Vec3(20)).intersects(sphere));
}
