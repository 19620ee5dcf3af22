#include "platform/desktop.h"
#include "platform/x11/client_size.h"
#include "platform/x11/connection_watch.h"
#include "platform/x11/contexts.h"
#include "platform/x11/curtains.h"
#include "platform/x11/display.h"
#include "platform/x11/events.h"
#include "platform/x11/host_window.h"
#include "platform/x11/message_dialog.h"
#include "platform/x11/monitor_layout.h"
#include "platform/x11/pointer.h"
#include "platform/x11/presentation.h"
#include "platform/x11/render_scale.h"
#include "platform/x11/running_flag.h"
#include "platform/x11/screen_area.h"
#include "platform/x11/window_manager.h"
#include "platform/x11/window_table.h"

#include <GL/glx.h>

// All functions of the port, on X11. What is different in a host's window is decided here.

namespace platform::x11 {

namespace {

// In a host's window no input is selected: it propagates to the host.
constexpr long hostedEvents = StructureNotifyMask | VisibilityChangeMask;
constexpr long ownEvents = hostedEvents | PropertyChangeMask | FocusChangeMask | KeyPressMask |
                           KeyReleaseMask | ButtonPressMask | ButtonReleaseMask |
                           PointerMotionMask | EnterWindowMask;

Display* connected()
{
    if (connection() != nullptr)
        return connection();
    Display* const display = openConnection();
    adoptHost(display);
    startWatch(hosted() ? hostWindow() : None);
    return display;
}

ScreenArea desktopArea(Display* display)
{
    return hosted() ? areaOf(display, hostWindow()) : monitors(display).front();
}

// The one pixel format of a window, that of the visual that it was created with.
constexpr int onlyFormat = 1;

// The record of a window that OpenGL can draw on, else null.
WindowRecord* findDrawable(desktop::NativeWindow window)
{
    WindowRecord* const record = findRecord(window);
    return record != nullptr && record->format.config != nullptr ? record : nullptr;
}

// Does something to a window if it is mapped, else once it is.
template <typename Action>
void onceShown(::Window window, bool MapRequests::*request, Action action)
{
    WindowRecord* const record = findRecord(window);
    if (record == nullptr || hosted())
        return;
    record->requests.*request = true;
    if (record->shown)
        action(connection(), window);
}

// A manager may have given the window another size by then, which its first frame has to fill.
void putOnScreen(Display* display, WindowRecord& record)
{
    watchMonitors(display);
    layCurtains(display, record);
    record.shown = true;
    mapWindow(display, record.id);
    if (record.requests.raise)
        XRaiseWindow(display, record.id);
    if (record.requests.cover)
        requestCover(display, record.id);
    if (record.requests.focus)
        giveKeyboard(display, record.id);
    updateClientSize(display, record);
}

} // namespace

} // namespace platform::x11

namespace platform::desktop {

using namespace platform::x11;

void chooseHost(int argumentCount, const char* const* arguments)
{
    chooseHostWindow(argumentCount, arguments);
}

bool size(Size& result)
{
    result = desktopArea(connected()).size;
    return true;
}

bool pointerPosition(POINT& result)
{
    Display* const display = connected();
    const ScreenArea area = desktopArea(display);
    ::Window root = 0, child = 0;
    int rootX = 0, rootY = 0, x = 0, y = 0;
    unsigned int buttons = 0;
    if (XQueryPointer(display, area.parent, &root, &child, &rootX, &rootY, &x, &y, &buttons) ==
        False)
        return false; // it is on another screen
    result = {x - area.corner.x, y - area.corner.y};
    return true;
}

bool nextMessage(Message& result)
{
    return connection() != nullptr && x11::nextMessage(connection(), result);
}

void disconnect()
{
    if (connection() != nullptr) {
        setRunningFlag(connection(), false);
        liftCurtains(connection());
        forgetContexts();
    }
    forgetWindows();
    releaseHost();
    closeConnection();
}

NativeWindow createWindow(const char* title, int x, int y, Size client)
{
    Display* const display = connected();
    XErrorTrap trap(display);
    const ScreenArea area = desktopArea(display);
    const POINT place{area.corner.x + x, area.corner.y + y};
    WindowRecord* const record =
        hosted() ? addWindow(display, {area.parent, area.corner, area.size, hostedEvents})
                 : addWindow(display, {area.parent, place, client, ownEvents});
    if (record == nullptr)
        return 0;
    if (hosted())
        varyRandomNumbers();
    record->origin = area.corner;
    if (!hosted())
        describeWindow(display, record->id, title);
    if (trap.firstError() != 0) {
        endIfHosted("no window could be created");
        removeWindow(display, *record);
        return 0;
    }
    return record->id;
}

bool destroyWindow(NativeWindow window)
{
    WindowRecord* const record = findRecord(window);
    if (record == nullptr)
        return false;
    liftCurtains(connection());
    removeWindow(connection(), *record);
    return true;
}

void showWindow(NativeWindow window)
{
    if (WindowRecord* const record = findRecord(window); record != nullptr)
        record->requests.show = true;
}

void raiseWindow(NativeWindow window)
{
    onceShown(window, &MapRequests::raise, XRaiseWindow);
}

void focusWindow(NativeWindow window)
{
    onceShown(window, &MapRequests::focus, giveKeyboard);
}

bool placeWindow(NativeWindow window, int x, int y, Size client, bool topmost)
{
    WindowRecord* const record = findRecord(window);
    if (record == nullptr)
        return false;
    record->sizeIsToTell = true; // a manager or a host may decide on another one
    if (hosted())
        return true;
    Display* const display = connection();
    const ScreenArea area = desktopArea(display);
    record->origin = area.corner;
    record->margins = {x, y, area.size.width - x - client.width,
                       area.size.height - y - client.height};
    layWindow(display, *record, area);
    if (topmost) {
        onceShown(window, &MapRequests::raise, XRaiseWindow);
        onceShown(window, &MapRequests::cover, requestCover);
    }
    // A manager also handles the requests of a window that is not mapped, in its own time. Until it
    // is mapped the size that was asked for counts.
    if (record->shown)
        updateClientSize(display, *record);
    else
        setClientSize(*record, client);
    return true;
}

Size toldSize(Size client)
{
    return pictureSize(client);
}

void showPointer(NativeWindow window, bool visible)
{
    WindowRecord* const record = findRecord(window);
    if (record != nullptr && !hosted())
        hidePointer(connection(), *record, !visible);
}

int choosePixelFormat(NativeWindow window, const PIXELFORMATDESCRIPTOR& descriptor)
{
    if (findDrawable(window) != nullptr && serves(descriptor))
        return onlyFormat;
    endIfHosted("no pixel format for OpenGL");
    return 0;
}

bool setPixelFormat(NativeWindow window, int format)
{
    return findDrawable(window) != nullptr && format == onlyFormat;
}

NativeContext createContext(NativeWindow window)
{
    const WindowRecord* const record = findDrawable(window);
    const NativeContext context = record == nullptr ? nullptr : addContext(*record);
    if (context == nullptr)
        endIfHosted("no OpenGL context");
    return context;
}

bool makeCurrent(NativeWindow window, NativeContext context)
{
    if (context == nullptr)
        return leaveContext();
    WindowRecord* const record = findRecord(window);
    if (record == nullptr || !selectContext(context, *record)) {
        endIfHosted("the OpenGL context cannot be used");
        return false;
    }
    setPace(connection(), window, desktopArea(connection()));
    return true;
}

bool deleteContext(NativeContext context)
{
    return removeContext(context);
}

bool swapBuffers(NativeWindow window)
{
    WindowRecord* const record = findRecord(window);
    if (record == nullptr)
        return false;
    if (record->requests.show && !record->shown)
        putOnScreen(connection(), *record);
    presentFrame(connection(), *record);
    startCopies(connection());
    return true;
}

PROC glProcedure(const char* name)
{
    if (!anyContextIsCurrent())
        return nullptr;
    return reinterpret_cast<PROC>(glXGetProcAddressARB(reinterpret_cast<const GLubyte*>(name)));
}

void messageBox(const char* text, const char* caption, UINT type, int endDescriptor)
{
    if (hosted())
        return printInOneLine(text);
    connected();
    if (!runMessageDialog(text, caption, type, endDescriptor))
        printInOneLine(text);
}

void setScreenSaverRunning(bool running)
{
    if (connection() != nullptr && !hosted())
        setRunningFlag(connection(), running);
}

} // namespace platform::desktop
