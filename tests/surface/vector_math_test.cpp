#include "surface/plane.h"
#include "surface/vec3.h"

#include <gtest/gtest.h>

TEST(Vec3, NormalizesToLengthOneAndLeavesZeroAlone)
{
    Vec3 v(3, 0, 4);
    v.normalize();
    EXPECT_LT((v - Vec3(0.6f, 0, 0.8f)).length(), 1e-6f);
    Vec3 zero;
    zero.normalize();
    EXPECT_EQ(zero.length(), 0);
}

TEST(Plane, NormalizingKeepsItsPoints)
{
    Plane plane{10, {0, 0, 2}};
    plane.normalize();
    EXPECT_EQ(plane.distance({7, 7, -5}), 0);
    EXPECT_EQ(plane.distance({7, 7, -6}), -1);
}
