#pragma once

#include "platform/x11/window_table.h"

namespace platform::x11 {

/// Asks the server for the window's present size; that in a ConfigureNotify may be older than our
/// last request. If it changed, the window's framebuffer is resized too, before the program is
/// told: what the program draws next reaches the edges.
void updateClientSize(Display* display, WindowRecord& record);

} // namespace platform::x11
