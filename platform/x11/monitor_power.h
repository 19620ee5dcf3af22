#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// False while the server has switched the monitors off to save power (DPMS), all of which share
/// one state. Asks the server.
[[nodiscard]] bool monitorsAreOn(Display* display);

} // namespace platform::x11
