#include "app/metaball_motion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace {

void expectVector(const Vec3& actual, double x, double y, double z)
{
    EXPECT_FLOAT_EQ(actual.x, static_cast<float>(x));
    EXPECT_FLOAT_EQ(actual.y, static_cast<float>(y));
    EXPECT_FLOAT_EQ(actual.z, static_cast<float>(z));
}

} // namespace

TEST(MetaballMotion, TakesTheDrawsInTheOrderOfItsFields)
{
    std::srand(7);
    double r[10];
    for (double& value : r)
        value = std::rand() % 32768 / 32768.0;
    std::srand(7);
    const MetaballMotion motion = randomMotion();
    constexpr double turn = 6.283185307179586;
    expectVector(motion.amplitude, r[0] * 800, r[1] * 800, r[2] * 800);
    expectVector(motion.frequency, r[3] * 4 - 2, r[4] * 4 - 2, r[5] * 4 - 2);
    expectVector(motion.phase, r[6] * turn, r[7] * turn, r[8] * turn);
    EXPECT_FLOAT_EQ(motion.radius, static_cast<float>(r[9] * 350 + 150));
}

TEST(MetaballMotion, SwingsBySinesOnXAndZAndByACosineOnY)
{
    const MetaballMotion motion{{100, 200, 300}, {2, -1, 0.5f}, {1, 0.25f, 3}, 0};
    expectVector(centreAt(motion, 0.5f), 100 * std::sin(3.0), 200 * std::cos(-0.75),
                 300 * std::sin(1.75));
}
