#include "platform/x11/pointer.h"

#include "platform/desktop.h"
#include "platform/x11/desktop_area.h"
#include "platform/x11/display.h"
#include "platform/x11/host_window.h"
#include "platform/x11/window.h"

namespace platform::x11 {

namespace {

void undefineCursor(::Window window)
{
    XUndefineCursor(openConnection(), window);
}

// A cursor of the window's own with nothing in it: elsewhere on the screen the pointer stays.
void defineEmptyCursor(::Window window)
{
    Display* const display = openConnection();
    constexpr char nothing[1] = {0};
    XColor black{};
    const Pixmap shape = XCreateBitmapFromData(display, window, nothing, 1, 1);
    const Cursor empty = XCreatePixmapCursor(display, shape, shape, &black, &black, 0, 0);
    XDefineCursor(display, window, empty);
    XFreeCursor(display, empty); // the window keeps it
    XFreePixmap(display, shape);
}

void forEachHidden(void (*act)(::Window))
{
    for (const WindowRecord& record : windowRecords())
        if (record.id != 0 && record.pointerHidden)
            act(record.id);
    if (openConnection() != nullptr)
        XFlush(openConnection());
}

} // namespace

VisiblePointer::VisiblePointer()
{
    forEachHidden(undefineCursor);
}

VisiblePointer::~VisiblePointer()
{
    forEachHidden(defineEmptyCursor);
}

} // namespace platform::x11

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
    WindowRecord* const record = findWindow(window);
    if (record == nullptr || hosted())
        return;
    record->pointerHidden = !visible;
    (visible ? undefineCursor : defineEmptyCursor)(window);
}

} // namespace platform::desktop
