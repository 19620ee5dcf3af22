#pragma once

#include "platform/desktop.h"

namespace platform {

/// Sends WM_SIZE unless the window's procedure already heard of this size last.
void tellSize(HWND handle, desktop::Size client);

} // namespace platform
