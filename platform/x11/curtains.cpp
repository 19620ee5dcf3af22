#include "platform/x11/curtains.h"

#include "platform/x11/host_window.h"
#include "platform/x11/hosted_copy.h"
#include "platform/x11/pointer.h"
#include "platform/x11/screen_area.h"
#include "platform/x11/software_renderer.h"
#include "platform/x11/window_manager.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace platform::x11 {

namespace {

struct Curtain {
    ::Window id = 0;
    ScreenArea monitor;
    bool copyStarted = false; ///< If it is to have one.
};

constinit std::vector<Curtain> curtains;
constinit ::Window saversWindow = 0;

bool overlap(const ScreenArea& a, const ScreenArea& b)
{
    return a.corner.x < b.corner.x + b.size.width && b.corner.x < a.corner.x + a.size.width &&
           a.corner.y < b.corner.y + b.size.height && b.corner.y < a.corner.y + a.size.height;
}

bool hangsOn(const Curtain& curtain, const ScreenArea& monitor)
{
    return curtain.monitor.corner.x == monitor.corner.x &&
           curtain.monitor.corner.y == monitor.corner.y && curtain.monitor.size == monitor.size;
}

bool contains(const ScreenArea& outer, const ScreenArea& inner)
{
    return outer.corner.x <= inner.corner.x && outer.corner.y <= inner.corner.y &&
           inner.corner.x + inner.size.width <= outer.corner.x + outer.size.width &&
           inner.corner.y + inner.size.height <= outer.corner.y + outer.size.height;
}

// A monitor that shows a part of another one, or the same, is covered with that one.
std::vector<ScreenArea> withoutMirrors(const std::vector<ScreenArea>& monitors)
{
    std::vector<ScreenArea> kept;
    for (const ScreenArea& monitor : monitors) {
        if (std::any_of(kept.begin(), kept.end(),
                        [&](const ScreenArea& other) { return contains(other, monitor); }))
            continue;
        std::erase_if(kept, [&](const ScreenArea& other) { return contains(monitor, other); });
        kept.push_back(monitor);
    }
    return kept;
}

// The window's middle: a manager may let its edges reach over to other monitors.
ScreenArea middleOf(Display* display, const WindowRecord& window)
{
    int x = 0, y = 0;
    ::Window child = 0;
    XTranslateCoordinates(display, window.id, DefaultRootWindow(display), window.client.width / 2,
                          window.client.height / 2, &x, &y, &child);
    return {DefaultRootWindow(display), {x, y}, {1, 1}};
}

std::vector<ScreenArea> bareMonitors(Display* display, const WindowRecord& saver)
{
    if (hosted() || saver.iconic || saver.hidden)
        return {};
    std::vector<ScreenArea> bare = monitors(display);
    const ScreenArea middle = middleOf(display, saver);
    const auto home = std::find_if(bare.begin(), bare.end(), [&](const ScreenArea& monitor) {
        return overlap(monitor, middle);
    });
    // A window that is on no monitor is on its way to the primary one.
    const ScreenArea covered = home == bare.end() ? bare.front() : *home;
    std::erase_if(bare, [&](const ScreenArea& monitor) { return overlap(monitor, covered); });
    return withoutMirrors(bare);
}

// The child of the root window that the window is in: its frame, where a manager has made one.
::Window frameOf(Display* display, ::Window window)
{
    ::Window root = 0, parent = window, *children = nullptr;
    unsigned int count = 0;
    do {
        window = parent;
        if (XQueryTree(display, window, &root, &parent, &children, &count) == 0)
            return 0;
        XFree(children);
    } while (parent != root);
    return window;
}

::Window hang(Display* display, const ScreenArea& monitor)
{
    XSetWindowAttributes attributes{};
    attributes.override_redirect = True;
    attributes.background_pixel = BlackPixel(display, DefaultScreen(display));
    attributes.event_mask = KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask |
                            PointerMotionMask | EnterWindowMask;
    const ::Window curtain = XCreateWindow(
        display, monitor.parent, monitor.corner.x, monitor.corner.y,
        static_cast<unsigned int>(monitor.size.width),
        static_cast<unsigned int>(monitor.size.height), 0, CopyFromParent, InputOutput, nullptr,
        CWOverrideRedirect | CWBackPixel | CWEventMask, &attributes);
    setEmptyCursor(display, curtain);
    describeCurtain(display, curtain);
    return curtain;
}

// Just above the saver's window: above panels, and below what lockers have put above the saver.
void stackAbove(Display* display, ::Window curtain, ::Window sibling)
{
    XWindowChanges place{};
    place.sibling = sibling;
    place.stack_mode = Above;
    XConfigureWindow(display, curtain, CWSibling | CWStackMode, &place);
}

} // namespace

void layCurtains(Display* display, const WindowRecord& saver)
{
    const std::vector<ScreenArea> bare = bareMonitors(display, saver);
    if (std::equal(curtains.begin(), curtains.end(), bare.begin(), bare.end(), hangsOn))
        return;
    liftCurtains(display);
    saversWindow = saver.id;
    const ::Window frame = frameOf(display, saver.id);
    for (const ScreenArea& monitor : bare) {
        const ::Window curtain = hang(display, monitor);
        curtains.push_back({curtain, monitor, false});
        if (saver.shown)
            stackAbove(display, curtain, frame);
        XMapWindow(display, curtain);
    }
    XFlush(display);
}

// The server has to know a window before the copy asks for it over a connection of its own.
void startCopies(Display* display)
{
    for (Curtain& curtain : curtains) {
        if (std::exchange(curtain.copyStarted, true) || drawsInSoftware(display))
            continue;
        XSync(display, False);
        startCopyIn(curtain.id);
    }
}

void liftCurtains(Display* display)
{
    for (const Curtain& curtain : curtains)
        XDestroyWindow(display, curtain.id);
    curtains.clear();
    XFlush(display);
}

::Window windowBehind(::Window window)
{
    const bool isCurtain =
        std::any_of(curtains.begin(), curtains.end(),
                    [window](const Curtain& curtain) { return curtain.id == window; });
    return isCurtain ? saversWindow : window;
}

} // namespace platform::x11
