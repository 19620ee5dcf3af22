#include "tests/platform/test_window.h"

#include "tests/support/headless_desktop.h"

#include <cstdint>
#include <map>
#include <utility>

namespace {

std::vector<std::string> sent;

std::string textOf(UINT message, WPARAM wParam, LPARAM lParam)
{
    static const std::map<UINT, std::string> names = {{WM_SIZE, "WM_SIZE"},
                                                      {WM_ACTIVATE, "WM_ACTIVATE"},
                                                      {WM_CLOSE, "WM_CLOSE"},
                                                      {WM_KEYDOWN, "WM_KEYDOWN"},
                                                      {WM_KEYUP, "WM_KEYUP"},
                                                      {WM_SYSKEYDOWN, "WM_SYSKEYDOWN"},
                                                      {WM_MOUSEMOVE, "WM_MOUSEMOVE"},
                                                      {WM_RBUTTONDOWN, "WM_RBUTTONDOWN"},
                                                      {WM_QUIT, "WM_QUIT"}};
    const auto pair = [](auto first, auto second) {
        return std::to_string(first) + " " + std::to_string(second);
    };
    const auto size = static_cast<std::uintptr_t>(lParam);
    POINT cursor{};
    std::string parameter = std::to_string(wParam);
    if (message == WM_SIZE)
        parameter = pair(LOWORD(size), HIWORD(size));
    else if (message >= WM_MOUSEMOVE && GetCursorPos(&cursor))
        parameter = pair(cursor.x, cursor.y);
    return names.at(message) + " " + parameter;
}

} // namespace

LRESULT TestWindow::noteMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    sent.push_back(textOf(message, wParam, lParam));
    return DefWindowProcA(window, message, wParam, lParam);
}

ATOM registerTestClass(LPCSTR name, WNDPROC procedure)
{
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.lpszClassName = name;
    return RegisterClassA(&windowClass);
}

HWND createTestWindow()
{
    return CreateWindowExA(0, "Test", "title", WS_POPUP, 0, 0, 800, 600, nullptr, nullptr, nullptr,
                           nullptr);
}

TestWindow::TestWindow(WNDPROC procedure)
{
    headless_desktop::reset();
    registerTestClass("Test", procedure);
    sent.clear();
    handle = createTestWindow();
}

TestWindow::~TestWindow()
{
    headless_desktop::reset(); // whatever the test made fail
    DestroyWindow(handle);
    UnregisterClassA("Test", nullptr);
}

std::vector<std::string> takeSent()
{
    return std::exchange(sent, {});
}

void pump()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT)
            sent.push_back(textOf(message.message, message.wParam, message.lParam));
        DispatchMessageA(&message);
    }
}
