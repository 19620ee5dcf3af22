#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// Whether the server is Xwayland, which shows its windows on a Wayland compositor and knows the
/// pointer only while it is over one of them. Asks the server.
[[nodiscard]] bool isXwayland(Display* display);

} // namespace platform::x11
