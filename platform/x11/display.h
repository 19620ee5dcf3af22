#pragma once

#include <X11/Xlib.h>

/// The one connection to the X server, its errors and its atoms.
namespace platform::x11 {

/// Opens the connection, unless it is open; null when there is no server to talk to, which is found
/// out once. Losing it ends the process at once with status 0: no destructor runs, so nothing calls
/// OpenGL on a connection that is gone.
Display* openConnection();

/// The connection if it is open, else null.
[[nodiscard]] Display* connection();

void closeConnection();

/// Is told of every X error of the process, before anything else is done about it.
using ErrorObserver = void (*)(const XErrorEvent& error);

/// There is one observer at a time; a new connection begins without.
void observeErrors(ErrorObserver observer);

/// Notes the first X error among the requests made in its scope. Scopes nest; the innermost one
/// that was open when a request was made gets its error. Errors outside of all scopes are ignored:
/// they come of windows that others destroyed meanwhile, and the saver can go on.
class XErrorTrap {
public:
    explicit XErrorTrap(Display* display);
    ~XErrorTrap();
    XErrorTrap(const XErrorTrap&) = delete;
    XErrorTrap& operator=(const XErrorTrap&) = delete;

    /// The code of the first error so far, 0 for none. Waits for the server to have seen every
    /// request.
    [[nodiscard]] int firstError();

private:
    friend Display* openConnection();
    static int note(Display* source, XErrorEvent* error);

    Display* server;
    XErrorTrap* outer;
    unsigned long firstRequest;
    int errorCode = 0;
};

/// The atoms that we use, interned together when the connection is opened.
enum class AtomName {
    wmProtocols,
    wmDeleteWindow,
    wmState,
    netWmPing,
    netWmPid,
    netWmName,
    netWmState,
    netWmStateAbove,
    netWmStateFullscreen,
    netWmStateHidden,
    netWmBypassCompositor,
    netSupportingWmCheck,
    netActiveWindow,
    motifWmHints,
    utf8String,
    screenSaverRunning,
    count
};

/// Valid while the connection is open.
[[nodiscard]] Atom atom(AtomName name);

} // namespace platform::x11
