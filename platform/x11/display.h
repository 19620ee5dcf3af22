#pragma once

#include <X11/Xlib.h>

/// The one connection to the X server, its errors and its atoms.
namespace platform::x11 {

/// The connection, which the first call opens. Exits with status 1, after a line on standard error,
/// when no server can be reached. If the connection is lost, the process exits at once with status
/// 0: no destructor runs, so nothing calls OpenGL on a lost connection.
Display* openConnection();

/// The connection if it is open, else null.
[[nodiscard]] Display* connection();

void closeConnection();

/// Is called with every X error of the process, before the error is handled.
using ErrorObserver = void (*)(const XErrorEvent& error);

/// Sets the observer; there is one at a time, and none on a new connection.
void observeErrors(ErrorObserver observer);

/// Records the first X error among the requests made in its scope. Scopes nest; an error belongs to
/// the innermost one that was open when its request was made. Errors outside of all scopes are
/// ignored: they come from windows that other programs destroyed, and the saver can go on.
class XErrorTrap {
public:
    explicit XErrorTrap(Display* display);
    ~XErrorTrap();
    XErrorTrap(const XErrorTrap&) = delete;
    XErrorTrap& operator=(const XErrorTrap&) = delete;

    /// The code of the first error so far, 0 for none. Waits until the server has processed all
    /// requests.
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
    netWmStateSkipTaskbar,
    netWmStateSkipPager,
    netWmBypassCompositor,
    netWmWindowOpacity,
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
