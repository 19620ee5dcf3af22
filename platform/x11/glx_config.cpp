#include "platform/x11/glx_config.h"

#include "platform/x11/display.h"

#include <GL/glxext.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <tuple>
#include <vector>

namespace platform::x11 {

namespace {

struct XFreeing {
    void operator()(void* memory) const { XFree(memory); }
};

// Only the conditions: glXChooseFBConfig also sorts, but by rules that do not fit a saver; the
// choice among what it returns is made below.
constexpr auto required = std::to_array<int>({
    GLX_DRAWABLE_TYPE,
    GLX_WINDOW_BIT,
    GLX_RENDER_TYPE,
    GLX_RGBA_BIT,
    GLX_X_VISUAL_TYPE,
    GLX_TRUE_COLOR,
    GLX_DOUBLEBUFFER,
    True,
    None,
});

bool serverHasGlx(Display* display)
{
    int major = 0;
    int minor = 0;
    return glXQueryExtension(display, nullptr, nullptr) != False &&
           glXQueryVersion(display, &major, &minor) != False &&
           std::tuple(major, minor) >= std::tuple(1, 3);
}

int attribute(Display* display, GLXFBConfig config, int name)
{
    int value = 0;
    return glXGetFBConfigAttrib(display, config, name, &value) == Success ? value : 0;
}

FormatTraits traitsOf(Display* display, GLXFBConfig config)
{
    const auto get = [=](int name) { return attribute(display, config, name); };
    const std::unique_ptr<XVisualInfo, XFreeing> info(glXGetVisualFromFBConfig(display, config));
    return {
        .visualDepth = info ? info->depth : 0,
        .red = get(GLX_RED_SIZE),
        .green = get(GLX_GREEN_SIZE),
        .blue = get(GLX_BLUE_SIZE),
        .alpha = get(GLX_ALPHA_SIZE),
        .depth = get(GLX_DEPTH_SIZE),
        .stencil = get(GLX_STENCIL_SIZE),
        .accumulation = get(GLX_ACCUM_RED_SIZE),
        .samples = get(GLX_SAMPLES),
        .slow = get(GLX_CONFIG_CAVEAT) != GLX_NONE,
        .swapCopies = get(GLX_SWAP_METHOD_OML) == GLX_SWAP_COPY_OML,
    };
}

bool usable(const FormatTraits& format)
{
    return format.visualDepth != 0 && format.visualDepth != 32;
}

// The sort key of a format: the smallest is the best, and an earlier member outweighs all later
// ones.
auto sortKey(const FormatTraits& format)
{
    // 8 bits a channel are what the screen has; the picture's own precision is that of the back
    // buffer.
    const int wrongBits =
        std::abs(format.red - 8) + std::abs(format.green - 8) + std::abs(format.blue - 8);
    // Then as few unused buffers as possible: each takes memory for every pixel of the screen, and
    // multisampling time too. Swaps that copy come last, since our own back buffer does without.
    return std::tuple(!usable(format), format.visualDepth != 24, format.slow, wrongBits,
                      format.samples, format.alpha, format.depth, format.stencil,
                      format.accumulation, !format.swapCopies);
}

} // namespace

std::size_t bestFormat(std::span<const FormatTraits> formats)
{
    const auto best = std::min_element(
        formats.begin(), formats.end(),
        [](const FormatTraits& a, const FormatTraits& b) { return sortKey(a) < sortKey(b); });
    if (best == formats.end() || !usable(*best))
        return formats.size();
    return static_cast<std::size_t>(best - formats.begin());
}

bool serves(const PIXELFORMATDESCRIPTOR& wanted)
{
    constexpr DWORD offered = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    return wanted.iPixelType == PFD_TYPE_RGBA && (wanted.dwFlags & ~offered) == 0 &&
           wanted.cAlphaBits == 0 && wanted.cAccumBits == 0 && wanted.cDepthBits == 0 &&
           wanted.cStencilBits == 0 && wanted.cAuxBuffers == 0;
}

bool chooseWindowFormat(Display* display, int screen, WindowFormat& result)
{
    XErrorTrap trap(display);
    if (!serverHasGlx(display))
        return false;
    int count = 0;
    const std::unique_ptr<GLXFBConfig, XFreeing> configs(
        glXChooseFBConfig(display, screen, required.data(), &count));
    if (!configs || trap.firstError() != 0)
        return false;
    const std::span offered(configs.get(), static_cast<std::size_t>(count));
    std::vector<FormatTraits> formats;
    std::transform(offered.begin(), offered.end(), std::back_inserter(formats),
                   [display](GLXFBConfig config) { return traitsOf(display, config); });
    const std::size_t best = bestFormat(formats);
    if (best == formats.size())
        return false;
    const std::unique_ptr<XVisualInfo, XFreeing> info(
        glXGetVisualFromFBConfig(display, offered[best]));
    if (!info)
        return false;
    result = {offered[best], info->visual, info->depth, formats[best].swapCopies};
    return trap.firstError() == 0;
}

} // namespace platform::x11
