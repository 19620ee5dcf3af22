#pragma once

#include "platform/desktop.h"

namespace platform {

/// What stands behind a window handle.
struct HandleRecord {
    HWND handle = nullptr;
    ATOM windowClass = 0;
    WNDPROC procedure = nullptr;
    desktop::NativeWindow native = 0;
    DWORD style = 0;
    desktop::Size toldSize{}; ///< The client size that the procedure last heard of.
    bool shown = false;
};

/// Gives a new window a handle, which its record is kept under from now on.
HWND addHandle(const HandleRecord& record);

/// Makes the handle stale.
void removeHandle(HWND handle);

/// The record of a living window, null for any other handle. Whatever runs a window procedure may
/// end its life.
[[nodiscard]] HandleRecord* recordOf(HWND handle);

/// The handle of the window that the desktop knows as `native`; null when there is none.
[[nodiscard]] HWND handleOf(desktop::NativeWindow native);

/// The window as the desktop knows it; 0 for a stale handle.
[[nodiscard]] desktop::NativeWindow nativeOf(HWND handle);

/// The handle of the window made last of those that live; null when there is none.
[[nodiscard]] HWND newestHandle();

[[nodiscard]] bool anyHandleOf(ATOM windowClass);

/// Shows or hides the pointer over every window, those that are made later among them. It is shown
/// until the first call.
void showPointerOverWindows(bool visible);

/// Calls the window's procedure there and then; 0 for a stale handle.
LRESULT sendMessage(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace platform
