#pragma once

#include "platform/x11/window_table.h"

namespace platform::x11 {

/// Learns the client size that the server has for the window now, which a ConfigureNotify from
/// before the last request would not say. When it is new, the kept picture gets it too, before the
/// program hears of it: what it draws next then has room to the edges.
void updateClientSize(Display* display, WindowRecord& record);

} // namespace platform::x11
