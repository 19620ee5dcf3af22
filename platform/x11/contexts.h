#pragma once

#include "platform/x11/window_table.h"

/// OpenGL contexts, each with the picture that it keeps for its window. All need a connection.
namespace platform::x11 {

/// A direct context, not yet current, with everything since OpenGL 1.0; null when there is none for
/// the window's format.
[[nodiscard]] desktop::NativeContext addContext(const WindowRecord& window);

/// Makes the context current on the window, whose kept picture is then bound for drawing.
[[nodiscard]] bool selectContext(desktop::NativeContext context, const WindowRecord& window);

[[nodiscard]] bool anyContextIsCurrent();

/// Leaves no context current.
bool leaveContext();

/// Leaves the context if it is current, and deletes it. False for one that is none.
[[nodiscard]] bool removeContext(desktop::NativeContext context);

/// Leaves no context current and deletes them all; for before the connection is closed.
void forgetContexts();

/// Gives the picture that the current context keeps for this window the window's present size.
void fitPicture(const WindowRecord& window);

/// Copies that picture to the window's back buffer.
void presentPicture(const WindowRecord& window);

} // namespace platform::x11
