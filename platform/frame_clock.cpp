#include "platform/frame_clock.h"

#include <ctime>

namespace platform {

void FrameClock::awaitNextFrame()
{
    constexpr Nanoseconds second = 1'000'000'000;
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    due = nextDueTime(due, time.tv_sec * second + time.tv_nsec, period);
    // An absolute deadline: a process that was suspended between the two calls does not sleep too
    // long.
    time = {due / second, due % second};
    clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &time, nullptr);
}

} // namespace platform
