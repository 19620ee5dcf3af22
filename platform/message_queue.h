#pragma once

#include "platform/win32_names.h"

namespace platform {

/// Where the pointer was when the mouse message came that a window procedure is handling now;
/// false when none is.
[[nodiscard]] bool pointerOfHandledMessage(POINT& result);

} // namespace platform
