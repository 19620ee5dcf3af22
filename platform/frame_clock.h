#pragma once

#include <cstdint>

namespace platform {

/// A time of the monotonic clock, or a duration.
using Nanoseconds = std::int64_t;

inline constexpr Nanoseconds usualFramePeriod = 1'000'000'000 / 60;

/// For how many refreshes of a monitor with this period each frame is shown, so that the animation,
/// which advances by the frame, comes nearest to its speed at 60 frames a second. A slower monitor
/// shows each for one.
//
// Nearest as a ratio, since a speed is one: n is better than n + 1 if the frame's period n * period
// is less far below the usual one than (n + 1) * period is above it,
//
//     usual / (n * period) <= (n + 1) * period / usual
//
// By difference 72 and 48, both from 144 Hz, would be equally near, and chance would choose.
[[nodiscard]] constexpr int refreshesPerFrame(Nanoseconds period)
{
    int count = 1;
    while (count * (count + 1) * period * period < usualFramePeriod * usualFramePeriod)
        ++count;
    return count;
}

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
