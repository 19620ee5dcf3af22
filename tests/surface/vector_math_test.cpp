#include "surface/matrix4.h"
#include "surface/plane.h"
#include "surface/vec3.h"

#include <gtest/gtest.h>

namespace {

void expectVec3(const Vec3& actual, const Vec3& expected)
{
    EXPECT_FLOAT_EQ(actual.x, expected.x);
    EXPECT_FLOAT_EQ(actual.y, expected.y);
    EXPECT_FLOAT_EQ(actual.z, expected.z);
}

} // namespace

TEST(Vec3, NormalizesToLengthOneAndLeavesZeroAlone)
{
    Vec3 v(3, 0, 4);
    v.normalize();
    expectVec3(v, {0.6f, 0, 0.8f});
    Vec3 zero;
    zero.normalize();
    expectVec3(zero, {0, 0, 0});
}

TEST(Vec3, CrossIsRightHanded)
{
    expectVec3(cross({1, 0, 0}, {0, 1, 0}), {0, 0, 1});
    expectVec3(cross({0, 2, 3}, {4, 0, 5}), {10, 12, -8});
}

TEST(Matrix4, ProductDoesTheRightHandFactorFirst)
{
    const Matrix4 move = Matrix4::translation(1, 2, 3);
    EXPECT_EQ((move * Matrix4()).elements, move.elements);
    // x and y exchanged: what was moved by (1, 2, 3) has then moved by (2, 1, 3).
    Matrix4 swap = Matrix4::fromRows({0, 1, 0}, {1, 0, 0}, {0, 0, 1});
    swap *= move;
    const std::array<float, 16> expected{0, 1, 0, 2, 1, 0, 0, 1, 0, 0, 1, 3, 0, 0, 0, 1};
    EXPECT_EQ(swap.elements, expected);
}

TEST(Plane, NormalizingKeepsItsPoints)
{
    Plane plane{10, {0, 0, 2}};
    plane.normalize();
    EXPECT_EQ(plane.d, 5);
    expectVec3(plane.n, {0, 0, 1});
    EXPECT_EQ(plane.distance({7, 7, -5}), 0);
    EXPECT_EQ(plane.distance({7, 7, -6}), -1);
}
