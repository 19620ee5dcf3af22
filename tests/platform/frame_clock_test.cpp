#include "platform/frame_clock.h"

#include <gtest/gtest.h>

using platform::nextDueTime;

TEST(FrameClock, KeepsDueTimesOnOneGrid)
{
    EXPECT_EQ(nextDueTime(100, 103, 10), 110);   // early: wait for the rest of the period
    EXPECT_EQ(nextDueTime(100, 117, 10), 110);   // late: now, and the next one on the old grid
    EXPECT_EQ(nextDueTime(100, 1236, 10), 1230); // after a stall: one now, not one for each missed
    EXPECT_EQ(nextDueTime(0, 12345, 10), 12340); // the first frame of all does not wait
}
