#pragma once

#include "platform/desktop.h"

namespace platform {

/// The desktop's name for the window that this device context draws in; 0 for the screen's, for
/// none, and once the window is destroyed.
[[nodiscard]] desktop::NativeWindow nativeOf(HDC deviceContext);

} // namespace platform
