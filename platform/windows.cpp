#include "platform/windows.h"

#include "platform/cursor.h"
#include "platform/window_classes.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace platform {

namespace {

// Each record stays where it is while others come and go, for procedures make and destroy windows.
constinit std::vector<std::unique_ptr<Window>> windows;

// Handles are numbers that are never given twice, so a stale one finds nothing.
constinit std::uintptr_t newestHandle = 0;

template <typename Predicate>
Window* findWhere(Predicate predicate)
{
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [&](const auto& window) { return predicate(*window); });
    return found == windows.end() ? nullptr : found->get();
}

void sendSize(Window& window, desktop::Size client)
{
    window.toldSize = client;
    sendMessage(window.handle, WM_SIZE, SIZE_RESTORED,
                MAKELPARAM(static_cast<WORD>(client.width), static_cast<WORD>(client.height)));
}

} // namespace

Window* findWindow(HWND handle)
{
    return findWhere([handle](const Window& window) { return window.handle == handle; });
}

HWND handleOf(desktop::NativeWindow native)
{
    const Window* window =
        findWhere([native](const Window& each) { return each.native == native; });
    return window == nullptr ? nullptr : window->handle;
}

desktop::NativeWindow nativeOf(HWND handle)
{
    const Window* window = findWindow(handle);
    return window == nullptr ? 0 : window->native;
}

HWND newestWindow()
{
    return windows.empty() ? nullptr : windows.back()->handle;
}

bool hasWindowOf(ATOM windowClass)
{
    const auto isOfClass = [=](const Window& window) { return window.windowClass == windowClass; };
    return findWhere(isOfClass) != nullptr;
}

void showPointerOverWindows(bool visible)
{
    for (const auto& window : windows)
        desktop::showPointer(window->native, visible);
}

LRESULT sendMessage(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Window* window = findWindow(handle);
    return window == nullptr ? 0 : window->procedure(handle, message, wParam, lParam);
}

void tellSize(HWND handle, desktop::Size client)
{
    Window* window = findWindow(handle);
    if (window != nullptr && window->toldSize != client)
        sendSize(*window, client);
}

} // namespace platform

using namespace platform;

BOOL AdjustWindowRectEx(RECT* rectangle, DWORD /*style*/, BOOL /*menu*/, DWORD /*extendedStyle*/)
{
    return rectangle != nullptr; // no window of ours has a frame
}

HWND CreateWindowExA(DWORD /*extendedStyle*/, LPCSTR className, LPCSTR windowName, DWORD style,
                     int x, int y, int width, int height, HWND /*parent*/, HMENU /*menu*/,
                     HINSTANCE /*instance*/, LPVOID /*parameter*/)
{
    const WindowClass windowClass = findWindowClass(className);
    if (windowClass.atom == 0)
        return nullptr;
    const desktop::Size client{width, height};
    const desktop::NativeWindow native =
        desktop::createWindow(windowName == nullptr ? "" : windowName, x, y, client);
    if (native == 0)
        return nullptr;
    const HWND handle = reinterpret_cast<HWND>(++newestHandle);
    windows.push_back(std::make_unique<Window>(Window{.handle = handle,
                                                      .windowClass = windowClass.atom,
                                                      .procedure = windowClass.procedure,
                                                      .native = native,
                                                      .style = style}));
    if (!pointerShown())
        desktop::showPointer(native, false);
    tellSize(handle, client);
    return findWindow(handle) == nullptr ? nullptr : handle;
}

BOOL DestroyWindow(HWND window)
{
    const desktop::NativeWindow native = nativeOf(window);
    if (native == 0 || !desktop::destroyWindow(native))
        return FALSE;
    std::erase_if(windows, [window](const auto& each) { return each->handle == window; });
    return TRUE;
}

BOOL ShowWindow(HWND window, int /*command*/)
{
    Window* record = findWindow(window);
    if (record == nullptr || record->shown)
        return record != nullptr;
    desktop::showWindow(record->native);
    record->shown = true;
    const desktop::Size client = record->toldSize;
    sendMessage(window, WM_ACTIVATE, WA_ACTIVE, 0);
    // Told again although nothing changed: what a procedure sets up by the size, it can set up
    // once the window is there.
    record = findWindow(window);
    if (record != nullptr)
        sendSize(*record, client);
    return FALSE;
}

BOOL SetForegroundWindow(HWND window)
{
    const desktop::NativeWindow native = nativeOf(window);
    if (native == 0)
        return FALSE;
    desktop::raiseWindow(native);
    return TRUE;
}

HWND SetFocus(HWND window)
{
    const desktop::NativeWindow native = nativeOf(window);
    if (native != 0)
        desktop::focusWindow(native);
    return nullptr;
}

LONG GetWindowLongA(HWND window, int index)
{
    const Window* record = findWindow(window);
    return record != nullptr && index == GWL_STYLE ? static_cast<LONG>(record->style) : 0;
}

LONG SetWindowLongA(HWND window, int index, LONG value)
{
    const LONG previous = GetWindowLongA(window, index);
    Window* record = findWindow(window);
    if (record != nullptr && index == GWL_STYLE)
        record->style = static_cast<DWORD>(value);
    return previous;
}

BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height,
                  UINT /*flags*/)
{
    const desktop::NativeWindow native = nativeOf(window);
    const desktop::Size client{width, height};
    if (native == 0 || !desktop::placeWindow(native, x, y, client, insertAfter == HWND_TOPMOST))
        return FALSE;
    tellSize(window, client);
    return TRUE;
}
