#pragma once

#include "platform/win32_names.h"
#include "tests/support/headless_desktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

/// A message and its wParam; with WM_SIZE the size, and with WM_MOUSEMOVE the position that
/// GetCursorPos returned.
using Sent = std::pair<UINT, LPARAM>;

/// A window of 800 x 600, not yet shown, on a fresh headless desktop. Its procedure records what it
/// is sent and calls DefWindowProcA.
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

    /// Another window of the same class, which the caller destroys.
    static HWND create()
    {
        return CreateWindowExA(0, "Test", "title", WS_POPUP, 0, 0, 800, 600, nullptr, nullptr,
                               nullptr, nullptr);
    }

    /// Dispatches all waiting messages; what was sent since the last call, WM_QUIT included.
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
