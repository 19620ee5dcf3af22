#pragma once

#include "platform/x11/window_table.h"

/// OpenGL contexts, each with the framebuffer (`BackBuffer`) that it draws on for its window. All
/// functions need an open connection.
namespace platform::x11 {

/// Creates a direct context of the compatibility profile for the window's format; null when that
/// fails.
[[nodiscard]] desktop::NativeContext addContext(const WindowRecord& window);

/// Makes the context current on the window, with its framebuffer bound. The first time it decides
/// on the render scale, and the size that the program is told of the window may become another.
[[nodiscard]] bool selectContext(desktop::NativeContext context, WindowRecord& window);

[[nodiscard]] bool anyContextIsCurrent();

/// Makes no context current.
bool leaveContext();

/// Deletes the context, which need not be left before. False for one that does not exist.
[[nodiscard]] bool removeContext(desktop::NativeContext context);

/// Makes no context current and deletes them all, when the connection is about to be closed.
void forgetContexts();

/// Resizes the framebuffer of the window to the picture for the client size, if the current context
/// draws on it; the contents are enlarged by `zoom`.
void fitBackBuffer(const WindowRecord& window, double zoom);

/// Takes a frame out of that framebuffer: to the window's back buffer, or to be enlarged.
void takeFrame(const WindowRecord& window);

/// Shows the frame that was taken on the window.
void showFrame(const WindowRecord& window);

} // namespace platform::x11
