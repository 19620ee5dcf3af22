#pragma once

#include "platform/win32.h"

/// What the saver's only window is made of; null where there is nothing to release.
struct GlWindow {
    HINSTANCE instance = nullptr;
    HWND window = nullptr;
    HDC deviceContext = nullptr;
    HGLRC renderingContext = nullptr;
};

extern constinit GlWindow glWindow;

/// Opens a borderless window, `width` by `height` pixels, with a double-buffered context that is
/// current afterwards, and tells the system that a screen saver runs. False when that cannot be
/// done: everything is released again by then, and a box has said why. Counts only the first
/// call's `colorBits`.
[[nodiscard]] bool openGlWindow(const char* title, int width, int height, int colorBits);

/// Stretches `window` over the whole screen, above all others, and hides the cursor for good.
void coverScreen(HWND window);

/// Releases what `openGlWindow` made, and tells the system that no screen saver runs any more.
/// Each step that fails is reported in a box; the others are still done.
void closeGlWindow();
