#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// Whether the current OpenGL context draws with the CPU. False where no driver says so.
[[nodiscard]] bool drawsInSoftware(Display* display);

} // namespace platform::x11
