#pragma once

#include <X11/Xlib.h>

/// The one connection to the X server, its errors and its atoms.
namespace platform::x11 {

/// The connection, opened by the first call; null when there is no server to talk to, which is
/// found out once. Losing it ends the process at once with status 0: no destructor runs, so
/// nothing calls OpenGL on a connection that is gone.
[[nodiscard]] Display* connection();

/// The connection if it is open; never opens it.
[[nodiscard]] Display* openConnection();

void closeConnection();

/// Makes ours the handlers of X errors, for every connection of this process. An error outside an
/// XErrorTrap is ignored: a saver outlives a hiccup.
void installErrorHandlers();

/// Notes the first X error among the requests made in its scope. Scopes nest; the innermost one
/// that was open when a request was made gets its error.
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
    friend void installErrorHandlers();
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
