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
    desktop::NativeWindow window = 0; // where it was current last; 0 before the first time
    BackBuffer backBuffer;
};

constinit std::vector<std::unique_ptr<Context>> contexts;
constinit Context* current = nullptr;

// Creates the framebuffer of a context that becomes current for the first time; resizes that of any
// other.
void prepareBackBuffer(Context& context, const WindowRecord& window)
{
    const desktop::Size size = window.client;
    if (context.window != 0) {
        context.backBuffer.fit(size);
        return;
    }
    // In order of preference; where nothing is supported, the program draws on the window's own
    // back buffer. With 8 bits a channel fading stops at a dim grey. A window whose swaps copy has
    // 8 bits and keeps its contents without a blit, so it precedes a framebuffer object of 8 bits.
    [[maybe_unused]] const bool kept =
        context.backBuffer.create(size, GL_RGB16) || context.backBuffer.create(size, GL_RGBA16) ||
        window.format.swapCopies || context.backBuffer.create(size, GL_RGBA8);
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
    // glXCreateNewContext gives the compatibility profile, which has immediate mode.
    context->handle =
        glXCreateNewContext(display, window.format.config, GLX_RGBA_TYPE, nullptr, True);
    if (context->handle == nullptr)
        return nullptr;
    // An indirect context would send every vertex through the X connection.
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
    prepareBackBuffer(wanted, window);
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

// The back buffer's OpenGL objects are deleted by the driver together with their context.
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

void fitBackBuffer(const WindowRecord& window)
{
    if (isCurrentOn(window))
        current->backBuffer.fit(window.client);
}

void presentBackBuffer(const WindowRecord& window)
{
    if (!isCurrentOn(window))
        return;
    current->backBuffer.present();
    glFlush(); // the driver can draw while we wait
}

} // namespace platform::x11
