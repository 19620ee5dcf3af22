#pragma once

#include "platform/desktop.h"

namespace platform {

/// Sends WM_SIZE unless this is the size that the window's procedure was told last.
void tellSize(HWND handle, desktop::Size client);

} // namespace platform
