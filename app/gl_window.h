#pragma once

#include "platform/win32.h"

/// The handles of the saver's only window; null until they are made. One that was released stays,
/// and is not used again.
struct GlWindow {
    HINSTANCE instance = nullptr;
    HWND window = nullptr;
    HDC deviceContext = nullptr;
    HGLRC renderingContext = nullptr;
};

extern constinit GlWindow glWindow;

/// Opens a borderless window with a client area of `width` x `height` pixels and a double-buffered
/// RGBA context, which is current afterwards, and sets the system's screen-saver-running flag. The
/// pixel format has `colorBits` bits of colour, as the first call asks for them, and no depth,
/// stencil or alpha. On failure everything is released again, a box names the step that failed,
/// and the result is false.
[[nodiscard]] bool openGlWindow(const char* title, int width, int height, int colorBits);

/// Makes `window` topmost, stretches it over the screen less its last row of pixels, and hides the
/// cursor. The size message that follows runs `resizeGlView`.
void coverScreen(HWND window);

/// Releases what `openGlWindow` made and clears the screen-saver-running flag. A step that fails is
/// reported in a box, and the next one follows all the same.
void closeGlWindow();
