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

/// Asks the manager to bring the window forward with the keyboard's focus.
void requestActivation(Display* display, ::Window window);

/// Gives a ping of the manager, a client message of WM_PROTOCOLS, back to it: we are alive.
void answerPing(const XClientMessageEvent& ping);

/// Whether a manager has made an icon of the window (WM_STATE).
[[nodiscard]] bool isIconic(Display* display, ::Window window);

/// Whether a manager says that nothing of the window can be seen (_NET_WM_STATE).
[[nodiscard]] bool isHidden(Display* display, ::Window window);

} // namespace platform::x11
