#pragma once

#include <cstdint>

namespace platform {

/// A time of the monotonic clock, or a duration.
using Nanoseconds = std::int64_t;

/// The time when the next frame is due, if the last one was due at `last` (0: there was none). Due
/// times are whole periods apart, so that one late frame does not delay the next. Those that have
/// passed are skipped, save the latest: after a stall one frame comes at once and not a burst.
[[nodiscard]] constexpr Nanoseconds nextDueTime(Nanoseconds last, Nanoseconds now,
                                                Nanoseconds period)
{
    const Nanoseconds missed = (now - last) / period;
    return last + (missed > 0 ? missed : 1) * period;
}

/// Limits the frame rate to one frame per period.
class FrameClock {
public:
    void setPeriod(Nanoseconds newPeriod) { period = newPeriod; }

    /// Sleeps until the next frame is due; returns at once if that time has passed. A signal ends
    /// the sleep early.
    void awaitNextFrame();

private:
    Nanoseconds period = 1;
    Nanoseconds due = 0;
};

} // namespace platform
