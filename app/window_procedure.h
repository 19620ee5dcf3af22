#pragma once

#include "app/cursor_travel.h"
#include "platform/win32.h"

/// The cursor's way since the window first saw it move.
extern constinit CursorTravel cursorTravel;

/// Turns the window's messages into shell state, and a close, a mouse button or a long way of the
/// cursor into a request to quit. Keys only leave their mark in `keyDown`. May run before there is
/// a context: the size that it then hands to OpenGL is lost, and given again by `openGlWindow`.
LRESULT CALLBACK glWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
