#include "platform/x11/running_flag.h"

#include "platform/x11/display.h"

namespace platform::x11 {

namespace {

// The flag is the ownership of a selection by a window that is never shown: both go with us.
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
        // Not by clearing the selection: it may be another saver's by now.
        XDestroyWindow(display, selectionOwner);
        selectionOwner = 0;
    }
    XFlush(display);
}

} // namespace platform::x11
