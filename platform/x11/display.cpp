#include "platform/x11/display.h"

#include "platform/x11/connection_watch.h"

#include <X11/XKBlib.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace platform::x11 {

namespace {

constexpr auto atomCount = static_cast<std::size_t>(AtomName::count);

// In the order of AtomName.
constexpr std::array<const char*, atomCount> atomTexts = {
    "WM_PROTOCOLS",
    "WM_DELETE_WINDOW",
    "WM_STATE",
    "_NET_WM_PING",
    "_NET_WM_PID",
    "_NET_WM_NAME",
    "_NET_WM_STATE",
    "_NET_WM_STATE_ABOVE",
    "_NET_WM_STATE_FULLSCREEN",
    "_NET_WM_STATE_HIDDEN",
    "_NET_WM_STATE_SKIP_TASKBAR",
    "_NET_WM_STATE_SKIP_PAGER",
    "_NET_WM_BYPASS_COMPOSITOR",
    "_NET_WM_WINDOW_OPACITY",
    "_NET_SUPPORTING_WM_CHECK",
    "_NET_ACTIVE_WINDOW",
    "_MOTIF_WM_HINTS",
    "UTF8_STRING",
    "_QUAZO_SCREENSAVER_RUNNING",
};

constinit Display* theConnection = nullptr;
constinit std::array<Atom, atomCount> atoms{};
constinit XErrorTrap* innermostTrap = nullptr;
constinit ErrorObserver observer = nullptr;

// Xlib calls this when the connection is lost, and exits itself if it returns.
int endQuietly(Display* /*display*/)
{
    _exit(0);
}

// There is nowhere to show a box. The name is "" where DISPLAY is not set.
[[noreturn]] void endWithoutDisplay()
{
    std::fprintf(stderr,
                 "quazo: no X display can be reached (DISPLAY is \"%s\"); on Wayland, install "
                 "xwayland\n",
                 XDisplayName(nullptr));
    std::exit(1);
}

void prepare(Display* display)
{
    auto texts = atomTexts;
    XInternAtoms(display, const_cast<char**>(texts.data()), static_cast<int>(atomCount), False,
                 atoms.data());
    // Auto-repeat of a held key then sends presses only; otherwise each has a release before it.
    XkbSetDetectableAutoRepeat(display, True, nullptr);
}

} // namespace

Display* openConnection()
{
    if (theConnection != nullptr)
        return theConnection;
    observer = nullptr;
    XSetErrorHandler(&XErrorTrap::note); // for every connection of this process
    XSetIOErrorHandler(&endQuietly);
    theConnection = openWatch() ? XOpenDisplay(nullptr) : nullptr; // one refusal is enough
    if (theConnection == nullptr)
        endWithoutDisplay();
    prepare(theConnection);
    return theConnection;
}

Display* connection()
{
    return theConnection;
}

void closeConnection()
{
    if (theConnection != nullptr)
        XCloseDisplay(theConnection);
    theConnection = nullptr;
    closeWatch();
}

void observeErrors(ErrorObserver newObserver)
{
    observer = newObserver;
}

XErrorTrap::XErrorTrap(Display* display)
    : server(display),
      outer(innermostTrap),
      firstRequest(NextRequest(display))
{
    innermostTrap = this;
}

XErrorTrap::~XErrorTrap()
{
    innermostTrap = outer;
}

int XErrorTrap::firstError()
{
    XSync(server, False);
    return errorCode;
}

int XErrorTrap::note(Display* source, XErrorEvent* error)
{
    if (observer != nullptr)
        observer(*error);
    // Errors arrive later than their requests: by then other scopes may have opened. The serial
    // number of the request tells whether it was made inside a scope; requests are numbered per
    // connection.
    XErrorTrap* trap = innermostTrap;
    while (trap != nullptr && (trap->server != source || error->serial < trap->firstRequest))
        trap = trap->outer;
    if (trap != nullptr && trap->errorCode == 0)
        trap->errorCode = error->error_code;
    return 0;
}

Atom atom(AtomName name)
{
    return atoms[static_cast<std::size_t>(name)];
}

} // namespace platform::x11
