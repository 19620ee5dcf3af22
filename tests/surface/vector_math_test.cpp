#include "surface/matrix4.h"
#include "surface/plane.h"
#include "surface/vec3.h"

#include <gtest/gtest.h>

#include <array>

TEST(Vec3, NormalizesToLengthOneAndLeavesZeroAlone)
{
    Vec3 v(3, 0, 4);
    v.normalize();
    EXPECT_LT((v - Vec3(0.6f, 0, 0.8f)).length(), 1e-6f);
    Vec3 zero;
    zero.normalize();
    EXPECT_EQ(zero.length(), 0);
}

TEST(Matrix4, ProductDoesTheRightHandFactorFirst)
{
    // x and y exchanged: what was moved by (1, 2, 3) has then moved by (2, 1, 3).
    Matrix4 swap = Matrix4::fromRows({0, 1, 0}, {1, 0, 0}, {0, 0, 1});
    swap *= Matrix4::translation(1, 2, 3);
    const std::array<float, 16> expected{0, 1, 0, 2, 1, 0, 0, 1, 0, 0, 1, 3, 0, 0, 0, 1};
    EXPECT_EQ(swap.elements, expected);
}

TEST(Plane, NormalizingKeepsItsPoints)
{
    Plane plane{10, {0, 0, 2}};
    plane.normalize();
    EXPECT_EQ(plane.distance({7, 7, -5}), 0);
    EXPECT_EQ(plane.distance({7, 7, -6}), -1);
}
