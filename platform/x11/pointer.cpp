#include "platform/desktop.h"
#include "platform/x11/desktop_area.h"
#include "platform/x11/display.h"
#include "platform/x11/host_window.h"
#include "platform/x11/window.h"

namespace platform::desktop {

using namespace platform::x11;

bool pointerPosition(POINT& result)
{
    Display* const display = connection();
    if (display == nullptr)
        return false;
    const DesktopArea area = desktopArea(display);
    ::Window root = 0, child = 0;
    int rootX = 0, rootY = 0, x = 0, y = 0;
    unsigned int buttons = 0;
    if (XQueryPointer(display, area.parent, &root, &child, &rootX, &rootY, &x, &y, &buttons) ==
        False)
        return false; // it is on another screen
    result = {x - area.corner.x, y - area.corner.y};
    return true;
}

void showPointer(NativeWindow window, bool visible)
{
    if (findWindow(window) == nullptr || hosted())
        return;
    Display* const display = connection();
    if (visible) {
        XUndefineCursor(display, window);
        return;
    }
    // A cursor of the window's own with nothing in it: elsewhere on the screen the pointer stays.
    constexpr char nothing[1] = {0};
    XColor black{};
    const Pixmap shape = XCreateBitmapFromData(display, window, nothing, 1, 1);
    const Cursor empty = XCreatePixmapCursor(display, shape, shape, &black, &black, 0, 0);
    XDefineCursor(display, window, empty);
    XFreeCursor(display, empty); // the window keeps it
    XFreePixmap(display, shape);
}

} // namespace platform::desktop
