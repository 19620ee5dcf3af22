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
    EXPECT_NEAR(surface.surfaceTexCoord({0, 0, 100}, surface.fieldAt({0, 0, 100})).z, 1, 0.01);
    surface.balls[1].set({300, 0, 0}, 400);
    EXPECT_EQ(surface.fieldAt({150, 0, 0}), 1.47705078125f);
    surface.setBallCount(0);
    EXPECT_EQ(surface.fieldAt({}), 0);
}
