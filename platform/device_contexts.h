#pragma once

#include "platform/desktop.h"

namespace platform {

/// The port's name for the window of this device context; 0 for the screen's device context, for a
/// null one, and for one whose window is destroyed.
[[nodiscard]] desktop::NativeWindow nativeOf(HDC deviceContext);

} // namespace platform
