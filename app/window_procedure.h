#pragma once

#include "app/cursor_travel.h"
#include "platform/win32.h"

/// The cursor's travel since the window's first WM_MOUSEMOVE.
extern constinit CursorTravel cursorTravel;

/// The window procedure. Keys set `keyDown`, activation sets `windowActive`, a size runs
/// `resizeGlView`; a close, a mouse button or more than 100 pixels of cursor travel post WM_QUIT. A
/// size that comes before there is a context is repeated by `openGlWindow`.
LRESULT CALLBACK glWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
