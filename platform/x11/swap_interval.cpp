#include "platform/x11/swap_interval.h"

#include "platform/x11/glx_extension.h"

#include <GL/glxext.h>

namespace platform::x11 {

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
