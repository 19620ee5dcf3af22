#pragma once

// The Win32 calls that the shell gets from us on Windows, for what the system's own do not do. Only
// platform/win32.h includes it, after the system's header. They are named by macros with arguments:
// `(::SwapBuffers)(context)` still is the system's.

namespace platform::shell_calls {

/// As wglMakeCurrent. With a context, what is drawn goes to a back buffer that keeps its contents,
/// of the size of the window's client area.
BOOL makeCurrent(HDC deviceContext, HGLRC renderingContext);

/// As SwapBuffers, when the next frame is due; the back buffer keeps its contents. Fails for any
/// device context but the current one.
BOOL swapBuffers(HDC deviceContext);

/// As PeekMessageA; a key's release is held until the queue was empty once. Once it is empty, the
/// back buffer has the size of the window's client area.
BOOL peekMessage(MSG* message, HWND window, UINT first, UINT last, UINT remove);

/// As MessageBoxA. The box is above our window, which gets no input meanwhile, and the pointer is
/// visible.
int messageBox(HWND owner, LPCSTR text, LPCSTR caption, UINT type);

/// As SystemParametersInfoA; a SPI_SETSCREENSAVERRUNNING that was set is cleared when the process
/// ends, unless another process ends it.
BOOL systemParametersInfo(UINT action, UINT parameter, LPVOID buffer, UINT flags);

/// As GetWindowsDirectoryA, for the directory that holds the data set: QUAZO_WINDOWS_DIRECTORY from
/// the environment if that is set and not empty; else the Windows directory or, if only that has
/// the data set, the program's own.
UINT windowsDirectory(LPSTR buffer, UINT size);

} // namespace platform::shell_calls

#define wglMakeCurrent(deviceContext, renderingContext)                                            \
    platform::shell_calls::makeCurrent(deviceContext, renderingContext)
#define SwapBuffers(deviceContext) platform::shell_calls::swapBuffers(deviceContext)
#define PeekMessageA(message, window, first, last, remove)                                         \
    platform::shell_calls::peekMessage(message, window, first, last, remove)
#define MessageBoxA(owner, text, caption, type)                                                    \
    platform::shell_calls::messageBox(owner, text, caption, type)
#define SystemParametersInfoA(action, parameter, buffer, flags)                                    \
    platform::shell_calls::systemParametersInfo(action, parameter, buffer, flags)
#define GetWindowsDirectoryA(buffer, size) platform::shell_calls::windowsDirectory(buffer, size)
