#include "platform/desktop.h"
#include "platform/x11/display.h"
#include "platform/x11/host_window.h"

namespace platform::x11 {

namespace {

// Never shown. The server takes it, and the selection with it, when this process ends in any way.
constinit ::Window selectionOwner = 0;

} // namespace

} // namespace platform::x11

// Says so and no more: the desktop's own locking and power saving go on.
void platform::desktop::setScreenSaverRunning(bool running)
{
    using namespace platform::x11;
    Display* const display = openConnection();
    if (display == nullptr || hosted() || running == (selectionOwner != 0))
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
