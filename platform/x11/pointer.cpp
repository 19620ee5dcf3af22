#include "platform/x11/pointer.h"

namespace platform::x11 {

namespace {

using SetCursor = void (*)(Display*, ::Window);

void setParentsCursor(Display* display, ::Window window)
{
    XUndefineCursor(display, window);
}

void setWhereHidden(Display* display, SetCursor setCursor)
{
    for (const WindowRecord& record : windowRecords())
        if (record.id != 0 && record.pointerHidden)
            setCursor(display, record.id);
    XFlush(display);
}

} // namespace

// The X protocol has no hidden pointer without an extension; a cursor whose mask has no pixel set
// shows nothing.
void setEmptyCursor(Display* display, ::Window window)
{
    constexpr char nothing[1] = {0};
    XColor black{};
    const Pixmap shape = XCreateBitmapFromData(display, window, nothing, 1, 1);
    const Cursor empty = XCreatePixmapCursor(display, shape, shape, &black, &black, 0, 0);
    XDefineCursor(display, window, empty);
    XFreeCursor(display, empty); // the window keeps it
    XFreePixmap(display, shape);
}

void hidePointer(Display* display, WindowRecord& record, bool hidden)
{
    record.pointerHidden = hidden;
    (hidden ? setEmptyCursor : setParentsCursor)(display, record.id);
}

VisiblePointer::VisiblePointer(Display* display) : server(display)
{
    setWhereHidden(server, setParentsCursor);
}

VisiblePointer::~VisiblePointer()
{
    setWhereHidden(server, setEmptyCursor);
}

} // namespace platform::x11
