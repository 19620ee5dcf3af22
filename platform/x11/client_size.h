#pragma once

#include "platform/x11/window_table.h"

namespace platform::x11 {

/// Sets the size in a window's record. If it is new, the window's framebuffer is resized too,
/// before the program is told: what the program draws next reaches the edges.
void setClientSize(WindowRecord& record, desktop::Size size);

/// Sets the size that the server has for the window now; that in a ConfigureNotify may be older
/// than our last request.
void updateClientSize(Display* display, WindowRecord& record);

} // namespace platform::x11
