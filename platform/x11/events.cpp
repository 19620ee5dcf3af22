#include "platform/x11/events.h"

#include "platform/x11/client_size.h"
#include "platform/x11/curtains.h"
#include "platform/x11/display.h"
#include "platform/x11/host_window.h"
#include "platform/x11/keys.h"
#include "platform/x11/monitor_layout.h"
#include "platform/x11/render_scale.h"
#include "platform/x11/window_manager.h"
#include "platform/x11/window_table.h"
#include "platform/x11/xwayland.h"

#include <X11/Xutil.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

namespace platform::x11 {

namespace {

using desktop::Message;

Message plainMessage(const WindowRecord& record, UINT kind, WPARAM wParam, LPARAM lParam)
{
    return {record.id, kind, wParam, lParam, {}, {}};
}

// For all event types with a pointer position, which have the same members for it. That on the root
// window holds for a curtain's events too; our window's top left corner is the desktop's. Where
// monitors change, the server moves the pointer: the first position after that becomes the one that
// was told last, so that no way lies between them.
template <typename Event>
Message pointerMessage(WindowRecord& record, UINT kind, const Event& event)
{
    if (std::exchange(record.pointerJumped, false))
        record.origin = {event.x_root - record.pointer.x, event.y_root - record.pointer.y};
    record.pointer = {event.x_root - record.origin.x, event.y_root - record.origin.y};
    Message message = plainMessage(
        record, kind, 0,
        MAKELPARAM(static_cast<WORD>(record.pointer.x), static_cast<WORD>(record.pointer.y)));
    message.pointer = record.pointer;
    return message;
}

// A server without detectable auto-repeat sends a release before each repeated press, with the same
// time stamp.
bool isRepeat(const XKeyEvent& release)
{
    if (XEventsQueued(release.display, QueuedAfterReading) == 0)
        return false;
    XEvent next;
    XPeekEvent(release.display, &next);
    return next.type == KeyPress && next.xkey.keycode == release.keycode &&
           next.xkey.time == release.time;
}

bool onKey(WindowRecord& record, const XEvent& event, Message& result)
{
    const bool released = event.type == KeyRelease;
    const int code = virtualKey(event.xkey);
    if (code == 0 || (released && isRepeat(event.xkey)))
        return false;
    // `state` is that before the event: Alt itself (usually the modifier Mod1) is not in it when it
    // goes down.
    const bool system = code == VK_MENU || (event.xkey.state & Mod1Mask) != 0;
    const UINT pressKind = system ? WM_SYSKEYDOWN : WM_KEYDOWN;
    const UINT releaseKind = system ? WM_SYSKEYUP : WM_KEYUP;
    result = plainMessage(record, released ? releaseKind : pressKind, static_cast<WPARAM>(code), 1);
    return true;
}

struct ButtonMessages {
    unsigned int button;
    UINT pressed, released;
};

constexpr ButtonMessages buttonMessages[] = {
    {Button1, WM_LBUTTONDOWN, WM_LBUTTONUP},
    {Button2, WM_MBUTTONDOWN, WM_MBUTTONUP},
    {Button3, WM_RBUTTONDOWN, WM_RBUTTONUP},
};

bool onButton(WindowRecord& record, const XEvent& event, Message& result)
{
    for (const ButtonMessages& messages : buttonMessages) {
        if (messages.button != event.xbutton.button)
            continue;
        const UINT kind = event.type == ButtonPress ? messages.pressed : messages.released;
        result = pointerMessage(record, kind, event.xbutton);
        return true;
    }
    return false;
}

bool onMotion(WindowRecord& record, const XEvent& event, Message& result)
{
    result = pointerMessage(record, WM_MOUSEMOVE, event.xmotion);
    return true;
}

// The server also sends this when the window is mapped under a pointer at rest. Not so Xwayland: it
// enters at the place where the pointer last was over an X window, and then moves to the true one,
// a way that nobody has moved the mouse.
bool onEnter(WindowRecord& record, const XEvent& event, Message& result)
{
    if (isXwayland(event.xany.display))
        return false;
    result = pointerMessage(record, WM_MOUSEMOVE, event.xcrossing);
    return true;
}

bool isMinimised(const WindowRecord& record)
{
    return record.iconic || record.hidden;
}

// The wParam of WM_ACTIVATE: low word the kind of activation, high word whether minimised.
WPARAM activation(const WindowRecord& record, WPARAM active)
{
    return isMinimised(record) ? WA_INACTIVE | (WPARAM{1} << 16) : active;
}

bool onFocus(WindowRecord& record, const XEvent& event, Message& result)
{
    if (!isFocusChange(event.xfocus))
        return false;
    // With another mode a grab is active, by a locker or by keys that switch windows.
    record.keyboardLost = event.type == FocusOut && event.xfocus.mode == NotifyNormal;
    const WPARAM active = event.type == FocusIn ? WA_ACTIVE : WA_INACTIVE;
    result = plainMessage(record, WM_ACTIVATE, activation(record, active), 0);
    return true;
}

// Managers tell of minimised windows by WM_STATE, _NET_WM_STATE, or both, one after the other. The
// window is minimised while either says so.
bool onProperty(WindowRecord& record, const XEvent& event, Message& result)
{
    const bool wasMinimised = isMinimised(record);
    if (event.xproperty.atom == atom(AtomName::wmState))
        record.iconic = isIconic(event.xany.display, record.id);
    else if (event.xproperty.atom == atom(AtomName::netWmState))
        record.hidden = isHidden(event.xany.display, record.id);
    if (wasMinimised == isMinimised(record))
        return false;
    layCurtains(event.xany.display, record);
    result = plainMessage(record, WM_ACTIVATE, activation(record, WA_ACTIVE), 0);
    return true;
}

// Only updates the record: reportSize makes the message. A manager may have moved the window to
// another monitor.
bool onConfigure(WindowRecord& record, const XEvent& event, Message& /*result*/)
{
    if (!record.shown && !hosted()) // before it is mapped, a size may be an outdated one
        return false;
    updateClientSize(event.xany.display, record);
    adaptToMonitor(event.xany.display, record);
    return false;
}

bool onVisibility(WindowRecord& record, const XEvent& event, Message& /*result*/)
{
    record.obscured = event.xvisibility.state == VisibilityFullyObscured;
    return false;
}

bool onClientMessage(WindowRecord& record, const XEvent& event, Message& result)
{
    if (answerPing(event) || protocolOf(event) != atom(AtomName::wmDeleteWindow))
        return false;
    result = plainMessage(record, WM_CLOSE, 0, 0);
    return true;
}

// Another program destroyed the window, without which the saver has nothing to do.
bool onDestroy(WindowRecord& record, const XEvent& /*event*/, Message& result)
{
    result = plainMessage(record, WM_CLOSE, 0, 0);
    return true;
}

struct Translation {
    int eventType;
    bool (*translate)(WindowRecord&, const XEvent&, Message&); // false: no message
};

constexpr Translation translations[] = {
    {KeyPress, onKey},
    {KeyRelease, onKey},
    {ButtonPress, onButton},
    {ButtonRelease, onButton},
    {MotionNotify, onMotion},
    {EnterNotify, onEnter},
    {FocusIn, onFocus},
    {FocusOut, onFocus},
    {PropertyNotify, onProperty},
    {ConfigureNotify, onConfigure},
    {VisibilityNotify, onVisibility},
    {ClientMessage, onClientMessage},
    {DestroyNotify, onDestroy},
};

bool translate(XEvent& event, Message& result)
{
    if (event.type == MappingNotify)
        XRefreshKeyboardMapping(&event.xmapping);
    if (followHost(event) || followMonitors(event))
        return false;
    WindowRecord* const record = findRecord(windowBehind(event.xany.window));
    const auto translation =
        std::find_if(std::begin(translations), std::end(translations),
                     [&event](const Translation& entry) { return entry.eventType == event.type; });
    return record != nullptr && translation != std::end(translations) &&
           translation->translate(*record, event, result);
}

// Reports a size when no event waits any more, so that of several changes only the last is seen.
bool reportSize(Message& result)
{
    const auto records = windowRecords();
    const auto resized =
        std::find_if(records.begin(), records.end(), [](const WindowRecord& record) {
            return record.id != 0 && record.sizeIsToTell;
        });
    if (resized == records.end())
        return false;
    resized->sizeIsToTell = false;
    result = plainMessage(*resized, WM_SIZE, SIZE_RESTORED, 0);
    result.client = pictureSize(resized->client);
    return true;
}

// A window that appears while the saver runs takes the focus although it is hidden below: what the
// user types would go there, and Escape too. Not more often than once a second, so that two
// programs that both insist do not fight.
void reclaimKeyboards(Display* display)
{
    using namespace std::chrono;
    for (WindowRecord& record : windowRecords()) {
        if (!record.keyboardLost || isMinimised(record) ||
            steady_clock::now() - record.keyboardAsked < seconds(1))
            continue;
        record.keyboardLost = false;
        record.keyboardAsked = steady_clock::now();
        reclaimKeyboard(display, record.id);
    }
}

} // namespace

bool nextMessage(Display* display, Message& result)
{
    XEvent event;
    while (XPending(display) > 0) {
        XNextEvent(display, &event);
        if (translate(event, result))
            return true;
    }
    reclaimKeyboards(display);
    return reportSize(result);
}

} // namespace platform::x11
