#include "platform/x11/running_flag.h"

#include "platform/x11/display.h"

namespace platform::x11 {

namespace {

// The flag is an owned selection. Its owner is a window that is never mapped, which the server
// destroys with our connection.
constinit ::Window selectionOwner = 0;

} // namespace

void setRunningFlag(Display* display, bool running)
{
    if (running == (selectionOwner != 0))
        return;
    if (running) {
        selectionOwner =
            XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
        XSetSelectionOwner(display, atom(AtomName::screenSaverRunning), selectionOwner,
                           CurrentTime);
    } else {
        // The selection itself is not cleared: by now it may be owned by another saver.
        XDestroyWindow(display, selectionOwner);
        selectionOwner = 0;
    }
    XFlush(display);
}

} // namespace platform::x11
