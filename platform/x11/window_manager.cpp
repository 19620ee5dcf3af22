#include "platform/x11/window_manager.h"

#include "platform/x11/display.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <span>
#include <unistd.h>

namespace platform::x11 {

namespace {

using Values = std::unique_ptr<unsigned long, decltype(&XFree)>;

/// A property made of 32-bit values, which Xlib keeps in a long each.
struct Property {
    Values data{nullptr, &XFree};
    std::size_t count = 0;

    [[nodiscard]] std::span<const unsigned long> values() const { return {data.get(), count}; }
};

Property readProperty(Display* display, ::Window window, AtomName name)
{
    constexpr long mostValues = 64;
    Atom type = 0;
    int bits = 0;
    unsigned long count = 0, left = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, window, atom(name), 0, mostValues, False, AnyPropertyType, &type,
                       &bits, &count, &left, &data);
    Property property{Values(reinterpret_cast<unsigned long*>(data), &XFree), 0};
    if (bits == 32)
        property.count = count;
    return property;
}

template <std::size_t count>
void writeProperty(Display* display, ::Window window, AtomName name, Atom type,
                   const std::array<unsigned long, count>& values)
{
    XChangeProperty(display, window, atom(name), type, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values.data()), static_cast<int>(count));
}

// Requests about mapped windows are client messages to the root window. The event mask selects the
// manager: only one client can have SubstructureRedirect on the root.
void sendToManager(Display* display, ::Window window, AtomName type,
                   const std::array<long, 5>& values)
{
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = atom(type);
    event.xclient.format = 32;
    std::copy(values.begin(), values.end(), event.xclient.data.l);
    XSendEvent(display, DefaultRootWindow(display), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
}

void requestActivation(Display* display, ::Window window, long source)
{
    sendToManager(display, window, AtomName::netActiveWindow, {source, CurrentTime, 0, 0, 0});
}

void writeStandardHints(Display* display, ::Window window, const char* title)
{
    XSizeHints place{};
    place.flags = USPosition | PPosition; // without it a manager places the window itself
    XWMHints input{};
    input.flags = InputHint | StateHint;
    input.input = True;
    input.initial_state = NormalState;
    char name[] = "quazo", className[] = "Quazo";
    XClassHint classHint{name, className};
    Xutf8SetWMProperties(display, window, title, title, nullptr, 0, &place, &input, &classHint);
}

} // namespace

bool managerRuns(Display* display)
{
    // The property outlives a manager that crashed, but the window that it names does not; as proof
    // that window has the same property, naming itself.
    const ::Window root = DefaultRootWindow(display);
    const Property claim = readProperty(display, root, AtomName::netSupportingWmCheck);
    if (claim.values().empty())
        return false;
    const ::Window manager = claim.values().front();
    const Property proof = readProperty(display, manager, AtomName::netSupportingWmCheck);
    return !proof.values().empty() && proof.values().front() == manager;
}

void keepOpaque(Display* display, ::Window window)
{
    constexpr unsigned long opaque = 0xFFFFFFFF;
    writeProperty<1>(display, window, AtomName::netWmWindowOpacity, XA_CARDINAL, {opaque});
}

void describeWindow(Display* display, ::Window window, const char* title)
{
    writeStandardHints(display, window, title);
    XChangeProperty(display, window, atom(AtomName::netWmName), atom(AtomName::utf8String), 8,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(title),
                    static_cast<int>(std::strlen(title)));
    writeProperty<2>(display, window, AtomName::wmProtocols, XA_ATOM,
                     {atom(AtomName::wmDeleteWindow), atom(AtomName::netWmPing)});
    writeProperty<1>(display, window, AtomName::netWmPid, XA_CARDINAL,
                     {static_cast<unsigned long>(getpid())});
    // Of the Motif hints the members are flags, functions, decorations, input mode and status. Flag
    // 2 says that decorations is valid; 0 there means none.
    constexpr unsigned long decorationsAreSet = 2;
    writeProperty<5>(display, window, AtomName::motifWmHints, atom(AtomName::motifWmHints),
                     {decorationsAreSet, 0, 0, 0, 0});
    // We cover the screen and redraw all of it in every frame: a compositor would only add a copy
    // and a delay.
    writeProperty<1>(display, window, AtomName::netWmBypassCompositor, XA_CARDINAL, {1});
    // Set before the window is mapped, so that a manager gives it its final size at once.
    writeProperty<4>(display, window, AtomName::netWmState, XA_ATOM,
                     {atom(AtomName::netWmStateAbove), atom(AtomName::netWmStateFullscreen),
                      atom(AtomName::netWmStateSkipTaskbar), atom(AtomName::netWmStateSkipPager)});
    keepOpaque(display, window);
}

void describeCurtain(Display* display, ::Window window)
{
    keepOpaque(display, window);
    // A compositor that takes out a window which covers a monitor may cease to draw the others:
    // xfwm4 then shows no frame of the saver's.
    constexpr unsigned long composited = 2;
    writeProperty<1>(display, window, AtomName::netWmBypassCompositor, XA_CARDINAL, {composited});
}

void requestCover(Display* display, ::Window window)
{
    // An action, up to two states, and the source of the request.
    constexpr long add = 1, fromApplication = 1;
    sendToManager(display, window, AtomName::netWmState,
                  {add, static_cast<long>(atom(AtomName::netWmStateAbove)),
                   static_cast<long>(atom(AtomName::netWmStateFullscreen)), fromApplication, 0});
}

void giveKeyboard(Display* display, ::Window window)
{
    // Where a manager runs, setting the focus ourselves would fight with its own idea of the active
    // window. RevertToPointerRoot: when our window goes, the keyboard follows the pointer.
    if (!managerRuns(display)) {
        XSetInputFocus(display, window, RevertToPointerRoot, CurrentTime);
        return;
    }
    constexpr long fromApplication = 1;
    requestActivation(display, window, fromApplication);
}

// As a pager, which acts for the user: managers refuse an application that asks while the user
// works in another window.
void reclaimKeyboard(Display* display, ::Window window)
{
    constexpr long fromPager = 2;
    if (managerRuns(display))
        requestActivation(display, window, fromPager);
}

Atom protocolOf(const XEvent& event)
{
    const XClientMessageEvent& message = event.xclient;
    const bool speaks = event.type == ClientMessage && message.format == 32 &&
                        message.message_type == atom(AtomName::wmProtocols);
    return speaks ? static_cast<Atom>(message.data.l[0]) : None;
}

bool answerPing(const XEvent& event)
{
    if (protocolOf(event) != atom(AtomName::netWmPing))
        return false;
    XEvent answer = event;
    answer.xclient.window = DefaultRootWindow(event.xany.display);
    XSendEvent(event.xany.display, answer.xclient.window, False,
               SubstructureRedirectMask | SubstructureNotifyMask, &answer);
    return true;
}

bool isFocusChange(const XFocusChangeEvent& event)
{
    return event.mode != NotifyGrab && event.mode != NotifyUngrab && event.detail != NotifyPointer;
}

bool isIconic(Display* display, ::Window window)
{
    const Property state = readProperty(display, window, AtomName::wmState);
    return !state.values().empty() && state.values().front() == IconicState;
}

bool isHidden(Display* display, ::Window window)
{
    const Property states = readProperty(display, window, AtomName::netWmState);
    const auto values = states.values();
    return std::find(values.begin(), values.end(), atom(AtomName::netWmStateHidden)) !=
           values.end();
}

} // namespace platform::x11
