#pragma once

#include "platform/win32_names.h"
#include "tests/support/headless_desktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

/// A message and its first parameter; of WM_SIZE the size, and of WM_MOUSEMOVE where GetCursorPos
/// says that the mouse is.
using Sent = std::pair<UINT, LPARAM>;

/// A window of 800 x 600, not yet shown, on a fresh headless desktop. Its procedure notes what it
/// is sent and leaves the rest to DefWindowProcA.
class TestWindow : public testing::Test {
protected:
    TestWindow()
    {
        headless_desktop::reset();
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = procedure;
        windowClass.lpszClassName = "Test";
        RegisterClassA(&windowClass);
        window = create();
        sent.clear();
    }

    ~TestWindow() override
    {
        DestroyWindow(window);
        UnregisterClassA("Test", nullptr);
    }

    /// One more of the same class, for which the caller calls DestroyWindow.
    static HWND create()
    {
        return CreateWindowExA(0, "Test", "title", WS_POPUP, 0, 0, 800, 600, nullptr, nullptr,
                               nullptr, nullptr);
    }

    /// Dispatches all that waits; what was sent since the last time, and a quit.
    static std::vector<Sent> takeSent()
    {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT)
                sent.emplace_back(WM_QUIT, message.wParam);
            DispatchMessageA(&message);
        }
        return std::exchange(sent, {});
    }

    HWND window;

private:
    static inline std::vector<Sent> sent;

    static LRESULT procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
    {
        POINT cursor{};
        if (message == WM_MOUSEMOVE && GetCursorPos(&cursor))
            lParam = MAKELPARAM(static_cast<WORD>(cursor.x), static_cast<WORD>(cursor.y));
        const bool hasPlace = message == WM_MOUSEMOVE || message == WM_SIZE;
        sent.emplace_back(message, hasPlace ? lParam : static_cast<LPARAM>(wParam));
        return DefWindowProcA(handle, message, wParam, lParam);
    }
};
