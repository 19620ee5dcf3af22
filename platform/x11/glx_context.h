#pragma once

#include "platform/desktop.h"

namespace platform::x11 {

/// Gives the picture that the current context keeps for this window the window's present size.
/// Call it when the size in the window's record has changed, before the program hears of it: what
/// it draws next then has room to the edges.
void fitBackBuffer(desktop::NativeWindow window);

/// Leaves no context current and forgets them all; for before the connection is closed.
void forgetContexts();

} // namespace platform::x11
