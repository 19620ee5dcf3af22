#include "platform/frame_clock.h"
#include "platform/win32.h"

#include <chrono>

namespace platform {

namespace {

// Without high resolution, which came with Windows 10, a timer ends up to a sixtieth of a second
// late.
HANDLE makeTimer()
{
    constexpr DWORD highResolution = 0x2; // CREATE_WAITABLE_TIMER_HIGH_RESOLUTION
    const HANDLE timer = CreateWaitableTimerExW(nullptr, nullptr, highResolution, TIMER_ALL_ACCESS);
    return timer != nullptr ? timer : CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS);
}

Nanoseconds now()
{
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(time).count();
}

} // namespace

void FrameClock::awaitNextFrame()
{
    static const HANDLE timer = makeTimer(); // the system closes it with the process
    const Nanoseconds present = now();
    due = nextDueTime(due, present, period);
    LARGE_INTEGER wait;
    wait.QuadPart = (present - due) / 100; // negative: from now, in units of 100 ns
    if (due > present && timer != nullptr &&
        SetWaitableTimer(timer, &wait, 0, nullptr, nullptr, FALSE) != FALSE)
        WaitForSingleObject(timer, INFINITE);
}

} // namespace platform
