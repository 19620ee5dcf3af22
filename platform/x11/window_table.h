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

/// How a window is made.
struct WindowRequest {
    ::Window parent = 0;
    POINT place{}; ///< Of its top left corner in the parent.
    desktop::Size client;
    long events = 0; ///< That it listens to, as an X event mask.
};

/// Makes a window, not yet shown, in the best format for OpenGL, and its record. Null when there is
/// no place for it; X errors are the caller's to look at.
[[nodiscard]] WindowRecord* addWindow(Display* display, const WindowRequest& request);

/// Puts a window on the screen and returns once it is there, or after a second without an answer.
void mapWindow(Display* display, ::Window window);

/// Destroys the window and frees its place.
void removeWindow(Display* display, WindowRecord& record);

/// Frees all places, for after the windows went with their connection.
void forgetWindows();

/// The record of a window that was added and not removed; null for any other. It stays where it is
/// until then.
[[nodiscard]] WindowRecord* findRecord(desktop::NativeWindow window);

/// All places, the free ones too.
[[nodiscard]] std::span<WindowRecord> windowRecords();

} // namespace platform::x11
