#pragma once

#include "platform/win32_names.h"

namespace platform {

/// The position of the pointer in the mouse message that is being dispatched; false while none is.
[[nodiscard]] bool pointerOfHandledMessage(POINT& result);

} // namespace platform
