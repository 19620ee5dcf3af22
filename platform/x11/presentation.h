#pragma once

#include "platform/x11/screen_area.h"
#include "platform/x11/window_table.h"

/// A frame's way to the screen.
namespace platform::x11 {

/// Sets the pace of the frames by the monitor that shows the middle of this area. A context has to
/// be current on the window.
void setPace(Display* display, ::Window window, const ScreenArea& area);

/// Puts what was drawn on a window that is mapped, when the next frame is due. Where nobody can see
/// the window it rests instead, a quarter of a second or until something happens.
void presentFrame(Display* display, WindowRecord& record);

} // namespace platform::x11
