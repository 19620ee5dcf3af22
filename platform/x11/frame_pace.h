#pragma once

#include <X11/extensions/Xrandr.h>

#include <cstdint>

namespace platform::x11 {

/// Times are in nanoseconds of the monotonic clock.
using Nanoseconds = std::int64_t;

/// How long a picture stands on a monitor in this mode; that of 60 Hz where the mode does not say
/// or says what no monitor does, as virtual ones do.
[[nodiscard]] Nanoseconds framePeriod(const XRRModeInfo& mode);

/// The same for the monitor that the desktop lies on; asks the server.
[[nodiscard]] Nanoseconds framePeriod(Display* display);

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
class FramePace {
public:
    void setPeriod(Nanoseconds newPeriod) { period = newPeriod; }

    /// Sleeps until the next frame is due; not at all where that time has passed. A signal ends
    /// the sleep early.
    void awaitNextFrame();

private:
    Nanoseconds period = 1;
    Nanoseconds due = 0;
};

} // namespace platform::x11
