#include "platform/x11/software_renderer.h"

#include "platform/x11/glx_extension.h"

#include <GL/glx.h>
#include <GL/glxext.h>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace platform::x11 {

namespace {

// Mesa's renderers on the CPU and other makers', as parts of GL_RENDERER. A driver that passes
// OpenGL on, to Vulkan or out of a virtual machine, has the name of what draws in its own.
constexpr std::string_view softwareRenderers[] = {
    "llvmpipe", "LLVMPIPE", "softpipe", "swrast", "Software Rasterizer", "SwiftShader",
};

bool hasSoftwareName()
{
    const auto* const text = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    const std::string_view name = text == nullptr ? "" : text;
    return std::any_of(
        std::begin(softwareRenderers), std::end(softwareRenderers),
        [name](std::string_view known) { return name.find(known) != std::string_view::npos; });
}

} // namespace

bool drawsInSoftware(Display* display)
{
    const auto query = glxProcedure<PFNGLXQUERYCURRENTRENDERERINTEGERMESAPROC>(
        display, "GLX_MESA_query_renderer", "glXQueryCurrentRendererIntegerMESA");
    unsigned int accelerated = 1;
    const bool told = query != nullptr && query(GLX_RENDERER_ACCELERATED_MESA, &accelerated) != 0;
    return (told && accelerated == 0) || hasSoftwareName();
}

} // namespace platform::x11
