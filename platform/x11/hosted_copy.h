#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// Starts a copy of this program, which draws in the window as in a host's and ends with it.
/// Returns at once. A copy that does not start or ends early leaves the window as it is, without a
/// word.
void startCopyIn(::Window window);

} // namespace platform::x11
