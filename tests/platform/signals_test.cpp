#include "platform/signals.h"

#include <array>
#include <cerrno>
#include <gtest/gtest.h>
#include <unistd.h>

TEST(EndSignals, LeaveAliveWhoWritesToNobody)
{
    platform::installEndSignals();
    std::array<int, 2> ends{}; // to read from, to write to
    ASSERT_EQ(pipe(ends.data()), 0);
    close(ends[0]);
    EXPECT_EQ(write(ends[1], "", 1), -1);
    EXPECT_EQ(errno, EPIPE);
    close(ends[1]);
}
