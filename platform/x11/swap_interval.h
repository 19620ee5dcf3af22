#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// Sets the swap interval of the current window to 1: a swap waits for the monitor's next refresh
/// (vsync). False where the driver does not support swap intervals.
bool setSwapInterval(Display* display, ::Window window);

} // namespace platform::x11
