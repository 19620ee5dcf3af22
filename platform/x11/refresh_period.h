#pragma once

#include "platform/frame_clock.h"
#include "platform/x11/screen_area.h"

#include <X11/extensions/Xrandr.h>

namespace platform::x11 {

/// The refresh period of a monitor in this mode; that of 60 Hz where the mode does not tell it, or
/// where it is out of the range of real monitors, as on virtual ones.
[[nodiscard]] Nanoseconds refreshPeriod(const XRRModeInfo& mode);

/// The same for the monitor that shows the middle of this area; asks the server.
[[nodiscard]] Nanoseconds refreshPeriod(Display* display, const ScreenArea& area);

} // namespace platform::x11
