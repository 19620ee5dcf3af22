#pragma once

#include "platform/x11/screen_area.h"
#include "platform/x11/window_table.h"

#include <X11/Xlib.h>

/// How our windows lie on the monitors, which may be plugged in, unplugged and moved while we run.
namespace platform::x11 {

/// Moves and resizes the window so that its margins to the desktop's edges are those of its record.
void layWindow(Display* display, WindowRecord& record, const ScreenArea& desktop);

/// Selects the events that tell of changes; in a host's window none, since the host follows them.
void watchMonitors(Display* display);

/// To be called when a window of ours may lie on another monitor, or that has another refresh rate:
/// sets the pace of the frames and lays the curtains. A context has to be current on the window.
void adaptToMonitor(Display* display, const WindowRecord& record);

/// Lays our windows anew if the event tells of a change; the jump that the pointer makes with it is
/// no move of the user's. False for any other event.
[[nodiscard]] bool followMonitors(const XEvent& event);

} // namespace platform::x11
