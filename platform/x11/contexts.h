#pragma once

#include "platform/x11/window_table.h"

/// OpenGL contexts, each with the framebuffer (`BackBuffer`) that it draws on for its window. All
/// functions need an open connection.
namespace platform::x11 {

/// Creates a direct context of the compatibility profile for the window's format; null when that
/// fails.
[[nodiscard]] desktop::NativeContext addContext(const WindowRecord& window);

/// Makes the context current on the window, with its framebuffer bound.
[[nodiscard]] bool selectContext(desktop::NativeContext context, const WindowRecord& window);

[[nodiscard]] bool anyContextIsCurrent();

/// Makes no context current.
bool leaveContext();

/// Deletes the context, which need not be left before. False for one that does not exist.
[[nodiscard]] bool removeContext(desktop::NativeContext context);

/// Makes no context current and deletes them all, when the connection is about to be closed.
void forgetContexts();

/// Resizes the framebuffer of the window to the client size, if the current context draws on it.
void fitBackBuffer(const WindowRecord& window);

/// Blits that framebuffer to the window's back buffer.
void presentBackBuffer(const WindowRecord& window);

} // namespace platform::x11
