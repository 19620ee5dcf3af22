#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// Tells whoever asks the server that a screen saver runs, or no more. Says so and does nothing
/// else: the desktop's own locking and power saving go on. The server takes the flag back when this
/// process ends in any way.
void setRunningFlag(Display* display, bool running);

} // namespace platform::x11
