#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// Sets the swap interval of the current window: a swap waits (vsync) until the frame before was
/// shown for this many of the monitor's refreshes. False where the driver does not support that.
bool setSwapInterval(Display* display, ::Window window, int refreshes);

} // namespace platform::x11
