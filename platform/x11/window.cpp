#include "platform/x11/window.h"

#include "platform/x11/desktop_area.h"
#include "platform/x11/display.h"
#include "platform/x11/glx_context.h"
#include "platform/x11/host_window.h"
#include "platform/x11/window_manager.h"

#include <X11/Xutil.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <poll.h>

namespace platform::x11 {

namespace {

constexpr std::size_t mostWindows = 4;
constinit std::array<WindowRecord, mostWindows> records{};

// In a host's window nothing of the input is ours: it goes on to the host.
constexpr long hostedEvents = StructureNotifyMask;
constexpr long ownEvents = StructureNotifyMask | PropertyChangeMask | FocusChangeMask |
                           KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask |
                           PointerMotionMask | EnterWindowMask;

WindowRecord* freeRecord()
{
    const auto place = std::find_if(records.begin(), records.end(),
                                    [](const WindowRecord& record) { return record.id == 0; });
    return place == records.end() ? nullptr : &*place;
}

WindowFormat windowFormat(Display* display)
{
    const int screen = DefaultScreen(display);
    WindowFormat format{};
    if (!chooseWindowFormat(display, screen, format))
        format = {nullptr, DefaultVisual(display, screen), DefaultDepth(display, screen), false};
    return format;
}

::Window makeWindow(Display* display, const DesktopArea& area, POINT place,
                    const WindowRecord& record)
{
    XSetWindowAttributes attributes{};
    attributes.colormap = record.colormap;
    // A visual that is not the parent's takes neither its border nor its background.
    attributes.border_pixel = 0;
    attributes.background_pixel = 0; // black: what stands there until the first frame
    attributes.event_mask = hosted() ? hostedEvents : ownEvents;
    return XCreateWindow(display, area.parent, area.corner.x + place.x, area.corner.y + place.y,
                         static_cast<unsigned int>(record.client.width),
                         static_cast<unsigned int>(record.client.height), 0, record.format.depth,
                         InputOutput, record.format.visual,
                         CWColormap | CWBorderPixel | CWBackPixel | CWEventMask, &attributes);
}

void release(Display* display, WindowRecord& record)
{
    XDestroyWindow(display, record.id);
    XFreeColormap(display, record.colormap);
    XFlush(display);
    record = {};
}

// What else happens meanwhile stays in Xlib's queue, in its order.
void awaitMapped(Display* display, ::Window window)
{
    using namespace std::chrono;
    const auto deadline = steady_clock::now() + seconds(1);
    XEvent event;
    while (XCheckTypedWindowEvent(display, window, MapNotify, &event) == False) {
        const auto left = duration_cast<milliseconds>(deadline - steady_clock::now()).count();
        pollfd server{ConnectionNumber(display), POLLIN, 0};
        if (left <= 0 || poll(&server, 1, static_cast<int>(left)) == 0)
            return;
    }
}

} // namespace

std::span<const WindowRecord> windowRecords()
{
    return records;
}

WindowRecord* findWindow(desktop::NativeWindow window)
{
    const auto found =
        std::find_if(records.begin(), records.end(), [window](const WindowRecord& record) {
            return record.id != 0 && record.id == window;
        });
    return found == records.end() ? nullptr : &*found;
}

WindowRecord* windowOfUntoldSize()
{
    const auto found = std::find_if(records.begin(), records.end(), [](const WindowRecord& record) {
        return record.id != 0 && record.sizeIsToTell;
    });
    return found == records.end() ? nullptr : &*found;
}

::Window shownWindow()
{
    const auto found = std::find_if(records.begin(), records.end(),
                                    [](const WindowRecord& record) { return record.shown; });
    return found == records.end() ? 0 : found->id;
}

void updateClientSize(Display* display, WindowRecord& record)
{
    const desktop::Size size = sizeOf(display, record.id);
    if (size == desktop::Size{} || size == record.client)
        return;
    record.client = size;
    record.sizeIsToTell = true;
    fitBackBuffer(record.id);
}

void fillHost(Display* display, desktop::Size size)
{
    for (WindowRecord& record : records) {
        if (record.id == 0)
            continue;
        XResizeWindow(display, record.id, static_cast<unsigned int>(size.width),
                      static_cast<unsigned int>(size.height));
    }
}

} // namespace platform::x11

namespace platform::desktop {

using namespace platform::x11;

NativeWindow createWindow(const char* title, int x, int y, Size client)
{
    Display* const display = connection();
    WindowRecord* const record = freeRecord();
    if (display == nullptr || record == nullptr)
        return 0;
    XErrorTrap trap(display);
    const DesktopArea area = desktopArea(display);
    WindowRecord made;
    made.format = windowFormat(display);
    made.colormap = XCreateColormap(display, area.parent, made.format.visual, AllocNone);
    made.origin = area.corner;
    made.client = hosted() ? area.size : client;
    made.id = makeWindow(display, area, hosted() ? POINT{0, 0} : POINT{x, y}, made);
    if (!hosted())
        describeWindow(display, made.id, title);
    if (trap.firstError() != 0) {
        release(display, made);
        return 0;
    }
    *record = made;
    return made.id;
}

bool destroyWindow(NativeWindow window)
{
    WindowRecord* const record = findWindow(window);
    if (record == nullptr)
        return false;
    release(connection(), *record);
    return true;
}

void showWindow(NativeWindow window)
{
    WindowRecord* const record = findWindow(window);
    if (record == nullptr || record->shown)
        return;
    record->shown = true;
    XMapWindow(connection(), record->id);
    awaitMapped(connection(), record->id);
}

void raiseWindow(NativeWindow window)
{
    if (findWindow(window) != nullptr && !hosted())
        XRaiseWindow(connection(), window);
}

void focusWindow(NativeWindow window)
{
    if (findWindow(window) == nullptr || hosted())
        return;
    Display* const display = connection();
    if (managerRuns(display))
        requestActivation(display, window);
    else
        XSetInputFocus(display, window, RevertToPointerRoot, CurrentTime);
}

bool placeWindow(NativeWindow window, int x, int y, Size client, bool topmost)
{
    WindowRecord* const record = findWindow(window);
    if (record == nullptr)
        return false;
    record->sizeIsToTell = true; // the manager or the host may have given it another
    if (hosted())
        return true;
    Display* const display = connection();
    const DesktopArea area = desktopArea(display);
    record->origin = area.corner;
    XMoveResizeWindow(display, window, area.corner.x + x, area.corner.y + y,
                      static_cast<unsigned int>(client.width),
                      static_cast<unsigned int>(client.height));
    if (topmost) {
        XRaiseWindow(display, window);
        requestCover(display, window);
    }
    updateClientSize(display, *record);
    return true;
}

void disconnect()
{
    setScreenSaverRunning(false);
    forgetContexts();
    records.fill({});
    closeConnection();
}

} // namespace platform::desktop
