#pragma once

#include "platform/frame_clock.h"
#include "platform/x11/desktop_area.h"

#include <X11/extensions/Xrandr.h>

namespace platform::x11 {

/// The refresh period of a monitor in this mode; that of 60 Hz where the mode does not tell it, or
/// where it is out of the range of real monitors, as on virtual ones.
[[nodiscard]] Nanoseconds refreshPeriod(const XRRModeInfo& mode);

/// The same for the monitor that shows the middle of this area; asks the server.
[[nodiscard]] Nanoseconds refreshPeriod(Display* display, const DesktopArea& desktop);

/// For how many refreshes of a monitor with this period each frame is shown, so that the animation,
/// which advances by the frame, comes nearest to its speed at 60 frames a second. A slower monitor
/// shows each for one.
[[nodiscard]] int refreshesPerFrame(Nanoseconds period);

} // namespace platform::x11
