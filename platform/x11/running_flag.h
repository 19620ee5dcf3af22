#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// Sets or clears a flag on the server that a screen saver is running. Other programs can read it;
/// the desktop's own locking and power saving are not affected. The server clears it however this
/// process ends.
void setRunningFlag(Display* display, bool running);

} // namespace platform::x11
