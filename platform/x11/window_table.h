#pragma once

#include "platform/desktop.h"
#include "platform/x11/glx_config.h"

#include <X11/Xlib.h>

#include <chrono>
#include <span>

namespace platform::x11 {

/// What the program asked for before the window is mapped, to be done when it is.
struct MapRequests {
    bool show = false; ///< With its first frame.
    bool raise = false, cover = false, focus = false;
};

/// What we know about a window of ours. A free place in the table has `id` 0.
struct WindowRecord {
    ::Window id = 0;       ///< The NativeWindow that the port hands out, and the GLX drawable.
    WindowFormat format{}; ///< With a null config where there is no GLX: default visual.
    Colormap colormap = 0;
    POINT origin{};           ///< The place on the root window from which the pointer's counts: the
                              ///< desktop's top left corner, until monitors change.
    POINT pointer{};          ///< Its place in the last mouse message.
    RECT margins{};           ///< Of the desktop, around the window, as the program placed it.
    desktop::Size client;     ///< As the server last reported; before it is mapped, as asked for.
    bool sizeIsToTell = true; ///< `client` is to be reported to the program.
    MapRequests requests;
    bool shown = false;                  ///< Mapped.
    bool pointerJumped = false;          ///< Monitors changed since the last mouse message.
    bool pointerHidden = false;          ///< While it is over the window.
    bool iconic = false, hidden = false; ///< Either means minimised.
    bool obscured = false;               ///< Wholly behind other windows.
    std::chrono::steady_clock::time_point seenUntil; ///< Till then the server is not asked again.
    bool keyboardLost = false; ///< Another window took the focus; not asked for since.
    std::chrono::steady_clock::time_point keyboardAsked; ///< When it was asked for last.
};

/// The parameters of a new window.
struct WindowRequest {
    ::Window parent = 0;
    POINT place{}; ///< Of the top left corner, in the parent.
    desktop::Size client;
    long events = 0; ///< The X event mask.
};

/// Creates a window, not yet mapped, in the best format for OpenGL, and its record. Null when the
/// table is full; the caller checks for X errors.
[[nodiscard]] WindowRecord* addWindow(Display* display, const WindowRequest& request);

/// Maps a window and waits for its MapNotify, at most a second.
void mapWindow(Display* display, ::Window window);

/// Destroys the window and its record.
void removeWindow(Display* display, WindowRecord& record);

/// Forgets all records, when the windows are about to go with the connection.
void forgetWindows();

/// The record of a window; null for one that is not in the table. Valid until the window is
/// removed.
[[nodiscard]] WindowRecord* findRecord(desktop::NativeWindow window);

/// All places of the table, the free ones too.
[[nodiscard]] std::span<WindowRecord> windowRecords();

} // namespace platform::x11
