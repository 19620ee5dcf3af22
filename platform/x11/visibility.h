#pragma once

#include "platform/x11/window_table.h"

/// Whether anybody can see a window of ours, and what to do with the time while nobody can.
namespace platform::x11 {

/// False while the window is minimised, not viewable, wholly behind other windows, or on a monitor
/// that is switched off. Events tell of minimised and of covered windows. Whether it is viewable,
/// and whether the monitors are on, the server has to be asked: once a second while the window is
/// seen, in every call while it is not.
[[nodiscard]] bool isSeen(Display* display, WindowRecord& record);

/// Waits a quarter of a second, or until an event or a signal comes.
void rest(Display* display);

} // namespace platform::x11
