#include "tests/support/user.h"

#include <algorithm>
#include <X11/extensions/XTest.h>
#include <X11/Xutil.h>

#include <cstdlib>
#include <stdexcept>
#include <thread>

namespace {

// A window may be destroyed while it is examined.
int ignoreError(Display* /*display*/, XErrorEvent* /*error*/)
{
    return 0;
}

} // namespace

User::User() : display(XOpenDisplay(nullptr))
{
    if (display == nullptr)
        throw std::runtime_error("no display to look at");
    XSetErrorHandler(ignoreError);
}

User::~User()
{
    XCloseDisplay(display);
}

bool User::waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

std::vector<Window> User::mappedWindows(Window parent) const
{
    Window ignored = 0;
    Window* children = nullptr;
    unsigned count = 0;
    const Window place = parent == 0 ? DefaultRootWindow(display) : parent;
    XQueryTree(display, place, &ignored, &ignored, &children, &count);
    std::vector<Window> windows(children, children + count);
    if (children != nullptr)
        XFree(children);
    std::erase_if(windows,
                  [this](Window window) { return attributesOf(window).map_state != IsViewable; });
    return windows;
}

XWindowAttributes User::attributesOf(Window window) const
{
    XWindowAttributes attributes{};
    XGetWindowAttributes(display, window, &attributes);
    return attributes;
}

std::string User::titleOf(Window window) const
{
    char* name = nullptr;
    std::string title;
    if (XFetchName(display, window, &name) != 0 && name != nullptr)
        title = name;
    XFree(name);
    return title;
}

Window User::waitForWindow(const std::string& title) const
{
    Window found = 0;
    waitUntil([&] {
        for (const Window window : mappedWindows())
            if (titleOf(window) == title)
                found = window;
        return found != 0;
    });
    return found;
}

void User::hold(KeySym key, bool down) const
{
    XTestFakeKeyEvent(display, XKeysymToKeycode(display, key), down ? True : False, CurrentTime);
    XSync(display, False);
}

void User::press(KeySym key) const
{
    hold(key, true);
    hold(key, false);
}

void User::click(unsigned button) const
{
    XTestFakeButtonEvent(display, button, True, CurrentTime);
    XTestFakeButtonEvent(display, button, False, CurrentTime);
    XSync(display, False);
}

void User::moveTo(int x, int y) const
{
    XTestFakeMotionEvent(display, -1, x, y, CurrentTime);
    XSync(display, False);
}

void User::sendProtocol(Window window, const char* protocol) const
{
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, protocol, False));
    XSendEvent(display, window, False, NoEventMask, &event);
    XSync(display, False);
}

int User::Picture::brightness(int x, int y) const
{
    const auto position = static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    const unsigned char* pixel = &rgb[3 * (position + static_cast<std::size_t>(x))];
    return *std::max_element(pixel, pixel + 3);
}

User::Picture User::look() const
{
    const Window root = DefaultRootWindow(display);
    const XWindowAttributes size = attributesOf(root);
    XImage* image = XGetImage(display, root, 0, 0, static_cast<unsigned>(size.width),
                              static_cast<unsigned>(size.height), AllPlanes, ZPixmap);
    Picture picture{size.width, size.height, {}};
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const unsigned long pixel = XGetPixel(image, x, y);
            for (const int shift : {16, 8, 0})
                picture.rgb.push_back(static_cast<unsigned char>(pixel >> shift));
        }
    XDestroyImage(image);
    return picture;
}
