#include "platform/x11/glx_context.h"

#include "platform/back_buffer.h"
#include "platform/frame_clock.h"
#include "platform/x11/display.h"
#include "platform/x11/frame_pace.h"
#include "platform/x11/window.h"

#include <GL/glx.h>
#include <GL/glxext.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace platform::x11 {

namespace {

struct Context {
    GLXContext handle = nullptr;
    desktop::NativeWindow window = 0; // the last one that it was current on; 0 before the first
    BackBuffer picture;
};

constinit std::vector<std::unique_ptr<Context>> contexts;
constinit Context* current = nullptr;
constinit FrameClock frameClock;

// A window is made for one format and knows no other.
constexpr int onlyFormat = 1;

bool serves(const PIXELFORMATDESCRIPTOR& wanted)
{
    constexpr DWORD offered = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    return wanted.iPixelType == PFD_TYPE_RGBA && (wanted.dwFlags & ~offered) == 0 &&
           wanted.cAlphaBits == 0 && wanted.cAccumBits == 0 && wanted.cDepthBits == 0 &&
           wanted.cStencilBits == 0 && wanted.cAuxBuffers == 0;
}

// The entry point of a GLX extension, where this screen has the extension.
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

// Asks the driver to swap with the monitor's refresh; false where it knows no such thing.
bool holdSwapsBack(Display* display, ::Window window)
{
    constexpr int refreshes = 1;
    if (const auto set = glxProcedure<PFNGLXSWAPINTERVALEXTPROC>(display, "GLX_EXT_swap_control",
                                                                 "glXSwapIntervalEXT")) {
        set(display, window, refreshes);
        return true;
    }
    if (const auto set = glxProcedure<PFNGLXSWAPINTERVALMESAPROC>(display, "GLX_MESA_swap_control",
                                                                  "glXSwapIntervalMESA"))
        return set(refreshes) == 0;
    if (const auto set = glxProcedure<PFNGLXSWAPINTERVALSGIPROC>(display, "GLX_SGI_swap_control",
                                                                 "glXSwapIntervalSGI"))
        return set(refreshes) == 0;
    return false;
}

void prepareSwaps(Display* display, ::Window window)
{
    const Nanoseconds period = framePeriod(display);
    // Where the driver holds swaps back as well, our clock runs a little fast: were it the slower
    // of the two, every now and then a frame would miss its refresh.
    const Nanoseconds lead = holdSwapsBack(display, window) ? period / 1000 : 0;
    frameClock.setPeriod(period - lead);
}

// The picture of a context that was never current before, or else one that fits the window.
void preparePicture(Context& context, const WindowRecord& window)
{
    const desktop::Size size = window.client;
    if (context.window != 0) {
        context.picture.fit(size);
        return;
    }
    // Where none can be had, the program draws on the window's own back buffer. One of 8 bits stops
    // fading at a dim grey, but unlike that it keeps what it shows.
    [[maybe_unused]] const bool kept =
        context.picture.create(size, GL_RGB16) || context.picture.create(size, GL_RGBA16) ||
        window.format.swapCopies || context.picture.create(size, GL_RGBA8);
}

bool leaveCurrent()
{
    if (current == nullptr)
        return true;
    current = nullptr;
    return glXMakeCurrent(openConnection(), None, nullptr) != False;
}

} // namespace

void fitBackBuffer(desktop::NativeWindow window)
{
    const WindowRecord* const record = findWindow(window);
    if (record != nullptr && current != nullptr && current->window == window)
        current->picture.fit(record->client);
}

void forgetContexts()
{
    leaveCurrent();
    for (const auto& context : contexts)
        glXDestroyContext(openConnection(), context->handle);
    contexts.clear();
}

} // namespace platform::x11

namespace platform::desktop {

using namespace platform::x11;

int choosePixelFormat(NativeWindow window, const PIXELFORMATDESCRIPTOR& descriptor)
{
    const WindowRecord* const record = findWindow(window);
    const bool offered = record != nullptr && record->format.config != nullptr;
    return offered && serves(descriptor) ? onlyFormat : 0;
}

bool setPixelFormat(NativeWindow window, int format)
{
    const WindowRecord* const record = findWindow(window);
    return record != nullptr && record->format.config != nullptr && format == onlyFormat;
}

NativeContext createContext(NativeWindow window)
{
    const WindowRecord* const record = findWindow(window);
    if (record == nullptr || record->format.config == nullptr)
        return nullptr;
    Display* const display = openConnection();
    XErrorTrap trap(display);
    auto context = std::make_unique<Context>();
    // Made this way, a context has everything since OpenGL 1.0: what is now called compatibility.
    context->handle =
        glXCreateNewContext(display, record->format.config, GLX_RGBA_TYPE, nullptr, True);
    if (context->handle == nullptr)
        return nullptr;
    // Over the wire every vertex would be a request.
    if (trap.firstError() != 0 || glXIsDirect(display, context->handle) == False) {
        glXDestroyContext(display, context->handle);
        return nullptr;
    }
    return contexts.emplace_back(std::move(context)).get();
}

bool makeCurrent(NativeWindow window, NativeContext context)
{
    if (context == nullptr)
        return leaveCurrent();
    const WindowRecord* const record = findWindow(window);
    if (record == nullptr)
        return false;
    Display* const display = openConnection();
    auto& wanted = *static_cast<Context*>(context);
    XErrorTrap trap(display);
    if (glXMakeCurrent(display, window, wanted.handle) == False || trap.firstError() != 0)
        return false;
    current = &wanted;
    preparePicture(wanted, *record);
    wanted.window = window;
    prepareSwaps(display, window);
    return true;
}

bool deleteContext(NativeContext context)
{
    const auto found = std::find_if(contexts.begin(), contexts.end(),
                                    [=](const auto& known) { return known.get() == context; });
    if (found == contexts.end())
        return false;
    if (current == context)
        leaveCurrent();
    glXDestroyContext(openConnection(), (*found)->handle);
    contexts.erase(found);
    return true;
}

bool swapBuffers(NativeWindow window)
{
    if (findWindow(window) == nullptr)
        return false;
    if (current != nullptr && current->window == window) {
        current->picture.present();
        glFlush(); // the driver can draw while we wait
    }
    frameClock.awaitNextFrame();
    glXSwapBuffers(openConnection(), window);
    return true;
}

PROC glProcedure(const char* name)
{
    if (current == nullptr)
        return nullptr;
    return reinterpret_cast<PROC>(glXGetProcAddressARB(reinterpret_cast<const GLubyte*>(name)));
}

} // namespace platform::desktop
