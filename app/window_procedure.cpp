#include "app/window_procedure.h"

#include "app/camera.h"
#include "app/shell_state.h"

constinit CursorTravel cursorTravel;

namespace {

void noteActivation(WPARAM wParam)
{
    const bool minimised = HIWORD(wParam) != 0;
    windowActive = !minimised;
}

void noteKey(WPARAM virtualKey, bool down)
{
    if (virtualKey < keyDown.size())
        keyDown[virtualKey] = down;
}

// Travel counts on the screen; the message's coordinates are relative to the window.
void trackCursor()
{
    POINT position;
    if (GetCursorPos(&position) && cursorTravel.moveTo(position))
        PostQuitMessage(0);
}

} // namespace

LRESULT CALLBACK glWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SIZE:
        resizeGlView(LOWORD(static_cast<WPARAM>(lParam)), HIWORD(static_cast<WPARAM>(lParam)));
        return 0;
    case WM_ACTIVATE:
        noteActivation(wParam);
        return 0;
    case WM_KEYDOWN:
        noteKey(wParam, true);
        return 0;
    case WM_KEYUP:
        noteKey(wParam, false);
        return 0;
    case WM_MOUSEMOVE:
        trackCursor();
        return 0;
    case WM_CLOSE:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}
