#pragma once

#include "platform/x11/window_table.h"

#include <X11/Xlib.h>

/// The curtains: one window on each monitor that the saver's own window leaves bare, black and
/// without a pointer. No manager handles them (override-redirect), so that they cover panels and
/// never take the focus. What the user does there counts as done in the saver's window.
namespace platform::x11 {

/// Lays curtains on the monitors where the saver's window is not, and not on mirrors of the one
/// where it is; lifts all of them while it is minimised. Does nothing if they lie that way already,
/// or in a host's window. Asks the server.
void layCurtains(Display* display, const WindowRecord& saver);

/// Starts a picture of its own on each new curtain; where the current context draws in software,
/// curtains stay black.
void startCopies(Display* display);

/// Lifts all curtains.
void liftCurtains(Display* display);

/// The saver's window that the curtain belongs to; `window` itself if it is no curtain.
[[nodiscard]] ::Window windowBehind(::Window window);

} // namespace platform::x11
