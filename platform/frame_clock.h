#pragma once

#include <cstdint>

namespace platform {

/// Times are in nanoseconds of the monotonic clock.
using Nanoseconds = std::int64_t;

/// When the next frame is due, the last one having been due at `last`, 0 for none. Due times stay
/// on one grid, so that a late frame delays no other; those that a stall has swallowed are left
/// out, so that nothing rushes after it.
[[nodiscard]] constexpr Nanoseconds nextDueTime(Nanoseconds last, Nanoseconds now,
                                                Nanoseconds period)
{
    const Nanoseconds missed = (now - last) / period;
    return last + (missed > 0 ? missed : 1) * period;
}

/// Keeps frames from coming faster than one a period.
class FrameClock {
public:
    void setPeriod(Nanoseconds newPeriod) { period = newPeriod; }

    /// Sleeps until the next frame is due; not at all where that time has passed. A signal ends
    /// the sleep early.
    void awaitNextFrame();

private:
    Nanoseconds period = 1;
    Nanoseconds due = 0;
};

} // namespace platform
