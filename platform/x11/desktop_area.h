#pragma once

#include "platform/desktop.h"

#include <X11/Xlib.h>

namespace platform::x11 {

/// Where the desktop lies: what its windows are children of, its top left corner there, its size.
/// The primary monitor on the root window, or the whole of a host's window.
struct DesktopArea {
    ::Window parent = 0;
    POINT corner{};
    desktop::Size size;
};

/// A window's size, asked of the server; 0 x 0 for one that is gone.
[[nodiscard]] desktop::Size sizeOf(Display* display, ::Window window);

/// The desktop as it is now; asks the server.
[[nodiscard]] DesktopArea desktopArea(Display* display);

} // namespace platform::x11
