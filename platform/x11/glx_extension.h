#pragma once

#include <GL/glx.h>

namespace platform::x11 {

/// Whether this screen has the GLX extension of this name.
[[nodiscard]] bool hasGlxExtension(Display* display, const char* name);

/// The entry point of an extension of GLX; null where this screen does not have the extension:
/// libraries give out entry points of extensions that the driver lacks.
template <typename Procedure>
[[nodiscard]] Procedure glxProcedure(Display* display, const char* extension, const char* name)
{
    if (!hasGlxExtension(display, extension))
        return nullptr;
    return reinterpret_cast<Procedure>(
        glXGetProcAddressARB(reinterpret_cast<const GLubyte*>(name)));
}

} // namespace platform::x11
