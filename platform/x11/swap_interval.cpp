#include "platform/x11/swap_interval.h"

#include <GL/glx.h>
#include <GL/glxext.h>

#include <string>

namespace platform::x11 {

namespace {

// The entry point of a GLX extension; null where this screen does not have the extension.
template <typename Procedure>
Procedure glxProcedure(Display* display, const std::string& extension, const char* name)
{
    const char* const known = glXQueryExtensionsString(display, DefaultScreen(display));
    const std::string offered = ' ' + std::string(known == nullptr ? "" : known) + ' ';
    if (offered.find(' ' + extension + ' ') == std::string::npos)
        return nullptr;
    return reinterpret_cast<Procedure>(
        glXGetProcAddressARB(reinterpret_cast<const GLubyte*>(name)));
}

} // namespace

// Three extensions with the same purpose; a driver has some of them or none.
bool setSwapInterval(Display* display, ::Window window, int refreshes)
{
    if (const auto set = glxProcedure<PFNGLXSWAPINTERVALEXTPROC>(display, "GLX_EXT_swap_control",
                                                                 "glXSwapIntervalEXT")) {
        set(display, window, refreshes);
        return true;
    }
    if (const auto set = glxProcedure<PFNGLXSWAPINTERVALMESAPROC>(display, "GLX_MESA_swap_control",
                                                                  "glXSwapIntervalMESA"))
        return set(static_cast<unsigned int>(refreshes)) == 0;
    if (const auto set = glxProcedure<PFNGLXSWAPINTERVALSGIPROC>(display, "GLX_SGI_swap_control",
                                                                 "glXSwapIntervalSGI"))
        return set(refreshes) == 0;
    return false;
}

} // namespace platform::x11
