#pragma once

#include <X11/Xlib.h>

/// Exits the process with status 0 as soon as the server or a host's window is gone, whatever the
/// program is doing: while it reads files or draws, it reads no events, and calls into OpenGL would
/// not survive the loss. A second connection serves for that, on which nothing else arrives, and
/// which tells of its input by a signal (SIGIO).
namespace platform::x11 {

/// Opens the second connection, if there is a server. To be called before the first one is opened:
/// a server that ends closes its connections in the order of their opening.
[[nodiscard]] bool openWatch();

/// Starts to watch the server and this window (0: none).
void startWatch(::Window window);

/// Closes the second connection.
void closeWatch();

} // namespace platform::x11
