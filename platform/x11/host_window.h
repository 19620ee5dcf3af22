#pragma once

#include <X11/Xlib.h>

#include <string>

/// The host: a program that started us to draw in one of its windows.
namespace platform::x11 {

/// Looks for a host's window in the program's arguments and environment, by the rules of
/// `desktop::chooseHost`.
void chooseHostWindow(int argumentCount, const char* const* arguments);

/// True when a host's window was given.
[[nodiscard]] bool hosted();

/// That window; 0 when what was given is no number.
[[nodiscard]] ::Window hostWindow();

/// Selects the events of the host's window on a new connection, if there is a host. From then on
/// the process exits with status 0 when that window is destroyed. Exits with status 1, after a line
/// on standard error, when there is no such window.
void adoptHost(Display* display);

/// Skips some values of the C library's `rand`, how many the host window's id decides: savers that
/// are seeded in the same second, one a monitor, show pictures of their own. To be called after the
/// seeding.
void varyRandomNumbers();

/// Writes `text` as one line to standard error, which a host's log shows: there is no other way
/// where a box would not be seen.
void printInOneLine(std::string text);

/// To be called when the saver cannot start. If there is a host, exits with status 1 after a line
/// with the reason: the shell would end with status 0, and the host would see a saver that ran.
void endIfHosted(const char* reason);

/// Forgets the host's window, when the connection is about to be closed.
void releaseHost();

/// Handles an event of the host's window: exits when it was destroyed, resizes our windows to its
/// size. False when `event` belongs to another window.
[[nodiscard]] bool followHost(const XEvent& event);

} // namespace platform::x11
