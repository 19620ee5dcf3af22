#pragma once

#include "platform/desktop.h"
#include "platform/x11/glx_config.h"

#include <X11/Xlib.h>

#include <span>

namespace platform::x11 {

/// What we know of a window of ours. A free place has `id` 0.
struct WindowRecord {
    ::Window id = 0;       ///< The NativeWindow that the port hands out, and the GLX drawable.
    WindowFormat format{}; ///< A null config: made without GLX, on the default visual.
    Colormap colormap = 0;
    POINT origin{};           ///< The desktop's corner on the root window, when last placed.
    desktop::Size client;     ///< As the server last said.
    bool sizeIsToTell = true; ///< The program has not been told `client` since it may have changed.
    bool shown = false;
    bool pointerHidden = false;          ///< While it is over this window.
    bool iconic = false, hidden = false; ///< Either one is minimised.
};

/// All places for records, the free ones too.
[[nodiscard]] std::span<const WindowRecord> windowRecords();

/// The record of a window that the port made and has not destroyed; null for any other. It stays
/// where it is until then.
[[nodiscard]] WindowRecord* findWindow(desktop::NativeWindow window);

/// A window of which the size is to be told; null when there is none.
[[nodiscard]] WindowRecord* windowOfUntoldSize();

/// One of our windows that has been shown; 0 when there is none.
[[nodiscard]] ::Window shownWindow();

/// Learns the client size that the server has for the window now, which a ConfigureNotify from
/// before the last request would not say.
void updateClientSize(Display* display, WindowRecord& record);

/// Gives our windows the size of the host's window that they are in.
void fillHost(Display* display, desktop::Size size);

} // namespace platform::x11
