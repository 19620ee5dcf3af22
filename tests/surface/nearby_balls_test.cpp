#include "surface/metaball.h"
#include "surface/nearby_balls.h"

#include <gtest/gtest.h>

#include <array>

TEST(NearbyBalls, KnowTheOctantsThatTheyMeetAndFill)
{
    // The first ball lies in octant 0 of a region of ±100 and touches three more and the middle of
    // their faces; the second one is only near octant 6.
    std::array<Metaball, 2> balls;
    balls[0].set(Vec3(-50), 50);
    balls[1].set(Vec3(90), 30);
    NearbyBalls nearby;
    nearby.begin(balls, {Vec3(-100), Vec3(100)}, 1);
    const unsigned met = nearby.measureOctants(0, {broadcast(-100), broadcast(0), broadcast(100)});
    EXPECT_EQ(nearby.octantsReaching(0, 0.9f), 1u << 0 | 1u << 6);
    for (std::size_t k = 0; k < cornerCount; ++k) {
        const auto& [x, y, z] = cornerOffset[k];
        const Vec3 low(x - 1.0f, y - 1.0f, z - 1.0f);
        const BoundingBox octant(low * 100, (low + Vec3(1)) * 100);
        const bool meets = octant.intersects(balls[0].bounds) || octant.intersects(balls[1].bounds);
        EXPECT_EQ((met >> k & 1) != 0, meets) << k;
        nearby.enterOctant(0, k);
        EXPECT_EQ(nearby.at(1).size(), meets ? 1u : 0u) << k;
    }
}
