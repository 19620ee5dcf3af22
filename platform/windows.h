#pragma once

#include "platform/desktop.h"

namespace platform {

/// The record behind a window handle.
struct Window {
    HWND handle = nullptr;
    ATOM windowClass = 0;
    WNDPROC procedure = nullptr;
    desktop::NativeWindow native = 0;
    DWORD style = 0;
    desktop::Size toldSize{}; ///< The client size that the procedure last heard of.
    bool shown = false;
};

/// The record of a living window, null for any other handle. Whatever runs a window procedure may
/// end its life.
[[nodiscard]] Window* findWindow(HWND handle);

/// The handle of the window that the desktop knows as `native`; null when there is none.
[[nodiscard]] HWND handleOf(desktop::NativeWindow native);

/// The window as the desktop knows it; 0 for a handle that is none.
[[nodiscard]] desktop::NativeWindow nativeOf(HWND handle);

/// The window made last of those that live; null when there is none.
[[nodiscard]] HWND newestWindow();

[[nodiscard]] bool hasWindowOf(ATOM windowClass);

/// Shows or hides the pointer over every window.
void showPointerOverWindows(bool visible);

/// Calls the window's procedure there and then; 0 when the handle is none.
LRESULT sendMessage(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

/// Sends WM_SIZE unless the window already told this size.
void tellSize(HWND handle, desktop::Size client);

} // namespace platform
