#include "platform/x11/contexts.h"

#include "platform/back_buffer.h"
#include "platform/x11/display.h"

#include <algorithm>
#include <memory>
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

// The picture of a context that was never current before, or else one that fits the window.
void preparePicture(Context& context, const WindowRecord& window)
{
    const desktop::Size size = window.client;
    if (context.window != 0) {
        context.picture.fit(size);
        return;
    }
    // Where none can be had, the program draws on the window's own back buffer. A picture of 8 bits
    // stops fading at a dim grey, but unlike that it outlives a swap.
    [[maybe_unused]] const bool kept =
        context.picture.create(size, GL_RGB16) || context.picture.create(size, GL_RGBA16) ||
        window.format.swapCopies || context.picture.create(size, GL_RGBA8);
}

bool isCurrentOn(const WindowRecord& window)
{
    return current != nullptr && current->window == window.id;
}

} // namespace

desktop::NativeContext addContext(const WindowRecord& window)
{
    Display* const display = connection();
    XErrorTrap trap(display);
    auto context = std::make_unique<Context>();
    // Made this way, a context has everything since OpenGL 1.0: what is now called compatibility.
    context->handle =
        glXCreateNewContext(display, window.format.config, GLX_RGBA_TYPE, nullptr, True);
    if (context->handle == nullptr)
        return nullptr;
    // Over the wire every vertex would be a request.
    if (trap.firstError() != 0 || glXIsDirect(display, context->handle) == False) {
        glXDestroyContext(display, context->handle);
        return nullptr;
    }
    return contexts.emplace_back(std::move(context)).get();
}

bool selectContext(desktop::NativeContext context, const WindowRecord& window)
{
    Display* const display = connection();
    auto& wanted = *static_cast<Context*>(context);
    XErrorTrap trap(display);
    if (glXMakeCurrent(display, window.id, wanted.handle) == False || trap.firstError() != 0)
        return false;
    current = &wanted;
    preparePicture(wanted, window);
    wanted.window = window.id;
    return true;
}

bool anyContextIsCurrent()
{
    return current != nullptr;
}

bool leaveContext()
{
    if (current == nullptr)
        return true;
    current = nullptr;
    return glXMakeCurrent(connection(), None, nullptr) != False;
}

bool removeContext(desktop::NativeContext context)
{
    const auto found = std::find_if(contexts.begin(), contexts.end(),
                                    [=](const auto& known) { return known.get() == context; });
    if (found == contexts.end())
        return false;
    if (current == context)
        leaveContext();
    glXDestroyContext(connection(), (*found)->handle);
    contexts.erase(found);
    return true;
}

void forgetContexts()
{
    leaveContext();
    for (const auto& context : contexts)
        glXDestroyContext(connection(), context->handle);
    contexts.clear();
}

void fitPicture(const WindowRecord& window)
{
    if (isCurrentOn(window))
        current->picture.fit(window.client);
}

void presentPicture(const WindowRecord& window)
{
    if (!isCurrentOn(window))
        return;
    current->picture.present();
    glFlush(); // the driver can draw while we wait
}

} // namespace platform::x11
