#pragma once

#include "platform/desktop.h"

#include <X11/Xlib.h>

namespace platform::x11 {

/// Implements `desktop::nextMessage` for an open connection: translates X events into messages.
[[nodiscard]] bool nextMessage(Display* display, desktop::Message& result);

} // namespace platform::x11
