#include "platform/frame_clock.h"

#include <gtest/gtest.h>

using namespace platform;

TEST(FrameClock, KeepsDueTimesOnOneGrid)
{
    EXPECT_EQ(nextDueTime(100, 103, 10), 110);   // early: wait for the rest of the period
    EXPECT_EQ(nextDueTime(100, 117, 10), 110);   // late: now, and the next one on the old grid
    EXPECT_EQ(nextDueTime(100, 1236, 10), 1230); // after a stall: one now, not one for each missed
    EXPECT_EQ(nextDueTime(0, 12345, 10), 12340); // the first frame of all does not wait
}

TEST(FrameClock, KeepsToTheDivisorOfTheRefreshRateNearestTo60)
{
    constexpr struct {
        double refreshRate, frameRate;
    } cases[] = {{24, 24},      {50, 50},  {59.94, 59.94},  {60, 60},  {75, 75},         {90, 45},
                 {100, 50},     {120, 60}, {143.86, 71.93}, {144, 72}, {144.05, 72.025}, {165, 55},
                 {170, 56.667}, {240, 60}, {280, 56},       {360, 60}, {1000, 58.82}};
    for (const auto& [refreshRate, frameRate] : cases) {
        const int refreshes = refreshesPerFrame(static_cast<Nanoseconds>(1e9 / refreshRate));
        EXPECT_NEAR(refreshRate / refreshes, frameRate, 0.01) << refreshRate;
    }
}
