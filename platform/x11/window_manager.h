#pragma once

#include <X11/Xlib.h>

/// The protocol with window managers: what we ask of one, what one asks of us, and whether one
/// runs. (ICCCM and the Extended Window Manager Hints.)
namespace platform::x11 {

/// Whether a window manager that knows the freedesktop.org hints runs.
[[nodiscard]] bool managerRuns(Display* display);

/// Asks compositing managers to show the window opaque, whatever they do with inactive windows. To
/// be called before the window is mapped.
void keepOpaque(Display* display, ::Window window);

/// Sets the properties that a manager reads when a window is mapped: name, class, protocols,
/// position, opacity, no decorations, no entry in taskbars and pagers, and the request to cover the
/// screen above all other windows.
void describeWindow(Display* display, ::Window window, const char* title);

/// Sets the properties of a window that no manager handles, and that covers a monitor beside a
/// window of the former kind.
void describeCurtain(Display* display, ::Window window);

/// Requests for a mapped window that it covers the screen above all others.
void requestCover(Display* display, ::Window window);

/// Gives a mapped window the keyboard focus: asks the manager to activate it, or sets the focus
/// where no manager runs.
void giveKeyboard(Display* display, ::Window window);

/// Asks the manager to activate a mapped window from which another window took the keyboard focus;
/// does nothing where no manager runs.
void reclaimKeyboard(Display* display, ::Window window);

/// The protocol in a WM_PROTOCOLS message; 0 for any other event.
[[nodiscard]] Atom protocolOf(const XEvent& event);

/// Answers the event if it is a ping (_NET_WM_PING), which asks whether we still respond. False
/// when it is none.
bool answerPing(const XEvent& event);

/// Whether the window itself got or lost the keyboard focus. Not so in two cases: a keyboard grab
/// begins or ends, and the focus follows the pointer (NotifyPointer).
[[nodiscard]] bool isFocusChange(const XFocusChangeEvent& event);

/// Whether the manager has iconified the window (WM_STATE).
[[nodiscard]] bool isIconic(Display* display, ::Window window);

/// Whether the manager says that the window is minimised (_NET_WM_STATE_HIDDEN).
[[nodiscard]] bool isHidden(Display* display, ::Window window);

} // namespace platform::x11
