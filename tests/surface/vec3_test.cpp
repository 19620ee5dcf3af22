#include "surface/vec3.h"

#include <gtest/gtest.h>

TEST(Vec3, NormalizingLeavesZeroAlone)
{
    Vec3 noDirection; // of the field, in the middle between two balls
    noDirection.normalize();
    EXPECT_EQ(noDirection.length(), 0);
}
