#pragma once

namespace platform {

/// Gives the back buffer the size of the current window's client area. Without a current context
/// does nothing.
void fitBackBufferToWindow();

} // namespace platform
