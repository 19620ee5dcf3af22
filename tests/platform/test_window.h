#pragma once

#include "platform/win32_names.h"

#include <string>
#include <vector>

/// A window of 800 x 600, not yet shown, on a fresh headless desktop. Its procedure notes what it
/// is sent and leaves the rest to DefWindowProcA.
class TestWindow {
public:
    explicit TestWindow(WNDPROC procedure = noteMessage);
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    static LRESULT noteMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND handle;
};

ATOM registerTestClass(LPCSTR name, WNDPROC procedure);

/// One more of the same class, for which the caller calls DestroyWindow.
HWND createTestWindow();

/// What test windows were sent since the last time, such as "WM_SIZE 800 600": the message and its
/// first parameter, or the size, or where GetCursorPos says that the mouse is.
std::vector<std::string> takeSent();

/// Dispatches all that waits, and notes a quit among what was sent.
void pump();
