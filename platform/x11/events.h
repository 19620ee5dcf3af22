#pragma once

#include "platform/desktop.h"

#include <X11/Xlib.h>

namespace platform::x11 {

/// `desktop::nextMessage` of an open connection.
[[nodiscard]] bool nextMessage(Display* display, desktop::Message& result);

} // namespace platform::x11
