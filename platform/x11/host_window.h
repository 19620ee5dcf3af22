#pragma once

#include <X11/Xlib.h>

/// A host is the program that started us to draw in a window of its own.
namespace platform::x11 {

/// True when `desktop::chooseHost` was given a window to draw in.
[[nodiscard]] bool hosted();

/// The window that the host named; only meaningful when hosted.
[[nodiscard]] ::Window hostWindow();

/// Starts to follow the host's window, if there is a host. Ends the process with status 1, and
/// one line on standard error, when what the host named is no window.
void adoptHost(Display* display);

/// Whether `error` says that the adopted window is no more.
[[nodiscard]] bool meansHostIsGone(const XErrorEvent& error);

/// Deals with what happened to the host's window: its end is ours, its size is our windows'.
/// False when `event` is about another window.
[[nodiscard]] bool followHost(const XEvent& event);

} // namespace platform::x11
