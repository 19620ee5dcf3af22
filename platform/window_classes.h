#pragma once

#include "platform/win32_names.h"

namespace platform {

/// What a window needs of its class.
struct WindowClass {
    ATOM atom = 0;
    WNDPROC procedure = nullptr;
};

/// The registered class of this name, whatever the case of its letters; its atom is 0 when there
/// is none.
[[nodiscard]] WindowClass findWindowClass(LPCSTR name);

} // namespace platform
