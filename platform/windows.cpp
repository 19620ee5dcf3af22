#include "platform/windows.h"

#include "platform/window_classes.h"
#include "platform/window_handles.h"

namespace platform {

namespace {

void sendSize(HandleRecord& record, desktop::Size client)
{
    record.toldSize = client;
    sendMessage(record.handle, WM_SIZE, SIZE_RESTORED,
                MAKELPARAM(static_cast<WORD>(client.width), static_cast<WORD>(client.height)));
}

} // namespace

void tellSize(HWND handle, desktop::Size client)
{
    HandleRecord* const record = recordOf(handle);
    if (record != nullptr && record->toldSize != client)
        sendSize(*record, client);
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
    // The size that was asked for is told, whatever size the port gives: that one comes as a
    // message.
    const desktop::Size client{width, height};
    const desktop::NativeWindow native =
        desktop::createWindow(windowName == nullptr ? "" : windowName, x, y, client);
    if (native == 0)
        return nullptr;
    const HWND handle = addHandle({.windowClass = windowClass.atom,
                                   .procedure = windowClass.procedure,
                                   .native = native,
                                   .style = style});
    tellSize(handle, client);
    return recordOf(handle) == nullptr ? nullptr : handle;
}

BOOL DestroyWindow(HWND window)
{
    const desktop::NativeWindow native = nativeOf(window);
    if (native == 0 || !desktop::destroyWindow(native))
        return FALSE;
    removeHandle(window);
    return TRUE;
}

BOOL ShowWindow(HWND window, int /*command*/)
{
    HandleRecord* record = recordOf(window);
    if (record == nullptr || record->shown)
        return record != nullptr;
    desktop::showWindow(record->native);
    record->shown = true;
    const desktop::Size client = record->toldSize;
    sendMessage(window, WM_ACTIVATE, WA_ACTIVE, 0);
    // Sent although the size is the same: a procedure may need the window on the screen for what it
    // sets up by the size.
    record = recordOf(window);
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
    const HandleRecord* record = recordOf(window);
    return record != nullptr && index == GWL_STYLE ? static_cast<LONG>(record->style) : 0;
}

LONG SetWindowLongA(HWND window, int index, LONG value)
{
    const LONG previous = GetWindowLongA(window, index);
    HandleRecord* record = recordOf(window);
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
    tellSize(window, desktop::toldSize(client));
    return TRUE;
}
