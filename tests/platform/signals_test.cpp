#include "platform/signals.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
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

TEST(EndSignalsDeathTest, EndAProcessThatIsStuckWithStatusZero)
{
    using namespace std::chrono;
    const auto hang = [](int signalNumber) {
        signal(signalNumber, SIG_IGN); // as a shell does for what runs in the background
        platform::installEndSignals();
        raise(signalNumber);
        for (const auto end = steady_clock::now() + 1s; steady_clock::now() < end;)
            continue;
        _exit(1);
    };
    for (const int signalNumber : {SIGTERM, SIGINT, SIGHUP})
        EXPECT_EXIT(hang(signalNumber), testing::ExitedWithCode(0), "");
}
