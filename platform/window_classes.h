#pragma once

#include "platform/win32_names.h"

namespace platform {

/// The part of a registered class that its windows need.
struct WindowClass {
    ATOM atom = 0;
    WNDPROC procedure = nullptr;
};

/// The registered class of this name, compared without regard to case; its atom is 0 when there is
/// none.
[[nodiscard]] WindowClass findWindowClass(LPCSTR name);

} // namespace platform
