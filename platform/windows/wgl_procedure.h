#pragma once

#include "platform/win32.h"

namespace platform {

/// The entry point `name` of OpenGL or WGL, as a function of type `Procedure`; null when the driver
/// has none. A context must be current.
template <typename Procedure>
[[nodiscard]] Procedure wglProcedure(const char* name)
{
    // Through a plain function pointer: a direct cast between the two types draws a warning.
    using AnyFunction = void (*)();
    return reinterpret_cast<Procedure>(reinterpret_cast<AnyFunction>(wglGetProcAddress(name)));
}

} // namespace platform
