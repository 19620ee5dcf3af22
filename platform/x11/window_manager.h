#pragma once

#include <X11/Xlib.h>

/// What we say to a window manager, and what one that is not there does not answer.
namespace platform::x11 {

/// Whether a window manager that knows the freedesktop.org hints runs.
[[nodiscard]] bool managerRuns(Display* display);

/// Gives a window that is not shown yet all that a manager reads when it appears: name, class,
/// protocols, place, no decorations, and its wish to cover the screen above everything else.
void describeWindow(Display* display, ::Window window, const char* title);

/// Wishes for a shown window what describeWindow wished for it before.
void requestCover(Display* display, ::Window window);

/// Gives a shown window the keyboard's focus: asks the manager to bring it forward with it, or
/// takes it where no manager runs.
void giveKeyboard(Display* display, ::Window window);

/// The protocol of WM_PROTOCOLS that the manager speaks to a window with this event; 0 when it is
/// another event.
[[nodiscard]] Atom protocolOf(const XEvent& event);

/// Gives a ping of the manager back to it: we are alive. False when `event` is no ping.
bool answerPing(const XEvent& event);

/// Whether a window really got or lost the keyboard's focus. A grab only borrows it, and a window
/// under the pointer is told of a focus that is another's.
[[nodiscard]] bool isFocusChange(const XFocusChangeEvent& event);

/// Whether a manager has made an icon of the window (WM_STATE).
[[nodiscard]] bool isIconic(Display* display, ::Window window);

/// Whether a manager says that nothing of the window can be seen (_NET_WM_STATE).
[[nodiscard]] bool isHidden(Display* display, ::Window window);

} // namespace platform::x11
