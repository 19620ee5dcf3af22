#pragma once

#include <X11/Xlib.h>

/// A host is the program that started us to draw in a window of its own.
namespace platform::x11 {

/// Looks for a host's window among the program's arguments and environment, as
/// `desktop::chooseHost` says, and forgets any earlier one.
void chooseHostWindow(int argumentCount, const char* const* arguments);

/// True when something was given as a host's window.
[[nodiscard]] bool hosted();

/// The window that the host named; only meaningful when hosted.
[[nodiscard]] ::Window hostWindow();

/// Starts to follow the host's window on a new connection, if there is a host; afterwards its end
/// is ours. Ends the process with status 1, and one line on standard error, when what the host
/// named is no window.
void adoptHost(Display* display);

/// Stops following, for before the connection is closed.
void releaseHost();

/// Deals with what happened to the host's window: its end is ours, its size is our windows'.
/// False when `event` is about another window.
[[nodiscard]] bool followHost(const XEvent& event);

} // namespace platform::x11
