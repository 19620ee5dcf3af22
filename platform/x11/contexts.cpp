#include "platform/x11/contexts.h"

#include "platform/back_buffer.h"
#include "platform/x11/display.h"
#include "platform/x11/enlargement.h"
#include "platform/x11/render_scale.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

namespace platform::x11 {

namespace {

struct Context {
    GLXContext handle = nullptr;
    desktop::NativeWindow window = 0; // where it was current last; 0 before the first time
    BackBuffer backBuffer;
    std::optional<Enlargement> enlargement; // where the picture is smaller than the window
};

constinit std::vector<std::unique_ptr<Context>> contexts;
constinit Context* current = nullptr;

// Fits the framebuffer to the window, and what enlarges it to the framebuffer.
void fitTo(const WindowRecord& window, Context& context, double zoom)
{
    context.backBuffer.fit(pictureSize(window.client), zoom);
    context.enlargement.reset();
    if (renderScale(window.client) > 1)
        context.enlargement.emplace(connection(), window.id, window.format.visual,
                                    context.backBuffer.size());
}

// For a context that becomes current for the first time. Only a framebuffer of ours can be smaller
// than the window.
void prepareBackBuffer(Context& context, WindowRecord& window)
{
    Display* const display = connection();
    context.backBuffer.createBest(window.client, window.format.swapCopies);
    chooseScaling(display, context.backBuffer.size() == window.client &&
                               Enlargement::isOffered(display, window.format.visual));
    window.sizeIsToTell = true;
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

bool selectContext(desktop::NativeContext context, WindowRecord& window)
{
    Display* const display = connection();
    auto& wanted = *static_cast<Context*>(context);
    XErrorTrap trap(display);
    if (glXMakeCurrent(display, window.id, wanted.handle) == False || trap.firstError() != 0)
        return false;
    current = &wanted;
    if (wanted.window == 0)
        prepareBackBuffer(wanted, window);
    fitTo(window, wanted, 1.0);
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

void fitBackBuffer(const WindowRecord& window, double zoom)
{
    if (isCurrentOn(window))
        fitTo(window, *current, zoom);
}

// The flush lets the driver draw while we wait for the server or for the frame's time.
void takeFrame(const WindowRecord& window)
{
    if (!isCurrentOn(window))
        return;
    if (!current->enlargement)
        current->backBuffer.present();
    glFlush();
    if (current->enlargement)
        current->backBuffer.read(current->enlargement->pixels());
}

void showFrame(const WindowRecord& window)
{
    if (isCurrentOn(window) && current->enlargement)
        current->enlargement->show(window.client);
    else
        glXSwapBuffers(connection(), window.id);
}

} // namespace platform::x11
