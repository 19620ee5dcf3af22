#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// Sets the swap interval of the current context's window to 1: a swap waits for the monitor's next
/// refresh. False where the driver has no swap interval.
bool setSwapInterval(Display* display, ::Window window);

} // namespace platform::x11
