#pragma once

#include "platform/desktop.h"

#include <X11/Xlib.h>

#include <vector>

namespace platform::x11 {

/// A rectangle of a window, in pixels: a desktop's, whose windows are children of that one, or a
/// monitor's on the root window.
struct ScreenArea {
    ::Window parent = 0;
    POINT corner{}; ///< Its top left one.
    desktop::Size size;
};

/// A window's size, asked of the server; 0 x 0 for one that is gone.
[[nodiscard]] desktop::Size sizeOf(Display* display, ::Window window);

/// The monitors on the root window, as they are now, the primary one first; there is at least one.
/// Monitors that show the same overlap. Asks the server.
[[nodiscard]] std::vector<ScreenArea> monitors(Display* display);

/// The whole of a window, as it is now; asks the server.
[[nodiscard]] ScreenArea areaOf(Display* display, ::Window window);

} // namespace platform::x11
