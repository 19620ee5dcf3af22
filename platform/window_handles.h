#pragma once

#include "platform/desktop.h"

namespace platform {

/// The window behind a window handle.
struct HandleRecord {
    HWND handle = nullptr;
    ATOM windowClass = 0;
    WNDPROC procedure = nullptr;
    desktop::NativeWindow native = 0;
    DWORD style = 0;
    desktop::Size toldSize{}; ///< The client size in the last WM_SIZE; windows.cpp sets it.
    bool shown = false;
};

/// Keeps the record of a new window; returns the handle that it gets.
HWND addHandle(const HandleRecord& record);

/// Forgets the record: the handle is stale from now on.
void removeHandle(HWND handle);

/// The record of a window; null for a stale handle. Valid until the window is destroyed, which any
/// call of a window procedure may do.
[[nodiscard]] HandleRecord* recordOf(HWND handle);

/// The handle of the window that the port calls `native`; null when there is none.
[[nodiscard]] HWND handleOf(desktop::NativeWindow native);

/// The port's name for the window; 0 for a stale handle.
[[nodiscard]] desktop::NativeWindow nativeOf(HWND handle);

/// The handle of the window that was made last; null when there is none.
[[nodiscard]] HWND newestHandle();

[[nodiscard]] bool anyHandleOf(ATOM windowClass);

/// Shows or hides the pointer over every window, also over those made later. Before the first call
/// it is shown.
void showPointerOverWindows(bool visible);

/// Calls the window's procedure directly, not by way of the queue; 0 for a stale handle.
LRESULT sendMessage(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace platform
