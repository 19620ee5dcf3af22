#pragma once

#include "platform/desktop.h"

#include <X11/Xlib.h>

namespace platform::x11 {

/// Where a desktop lies: what its windows are children of, its top left corner there, its size.
struct DesktopArea {
    ::Window parent = 0;
    POINT corner{};
    desktop::Size size;
};

/// A window's size, asked of the server; 0 x 0 for one that is gone.
[[nodiscard]] desktop::Size sizeOf(Display* display, ::Window window);

/// The primary monitor on the root window, as it is now; asks the server.
[[nodiscard]] DesktopArea primaryMonitor(Display* display);

/// The whole of a window, as it is now; asks the server.
[[nodiscard]] DesktopArea areaOf(Display* display, ::Window window);

} // namespace platform::x11
