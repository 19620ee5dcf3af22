#pragma once

// The Win32 types, constants and functions that the shell uses, with their standard names and
// values. docs/platform.md says what each function does here and what it ignores.

#include <cstdint>

#define CALLBACK
#define WINAPI
#define APIENTRY

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using ATOM = WORD;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using LPSTR = char*;
using LPCSTR = const char*;
using LPVOID = void*;

using HWND = struct HWND__*;
using HDC = struct HDC__*;
using HGLRC = struct HGLRC__*;
using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using HICON = struct HICON__*;
using HCURSOR = HICON;
using HBRUSH = struct HBRUSH__*;
using HMENU = struct HMENU__*;
using PROC = std::intptr_t (*)();
using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);

struct POINT {
    LONG x, y;
};

struct RECT {
    LONG left, top, right, bottom;
};

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

struct WNDCLASSA {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra, cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName, lpszClassName;
};

struct PIXELFORMATDESCRIPTOR {
    WORD nSize, nVersion;
    DWORD dwFlags;
    BYTE iPixelType, cColorBits;
    BYTE cRedBits, cRedShift, cGreenBits, cGreenShift, cBlueBits, cBlueShift;
    BYTE cAlphaBits, cAlphaShift;
    BYTE cAccumBits, cAccumRedBits, cAccumGreenBits, cAccumBlueBits, cAccumAlphaBits;
    BYTE cDepthBits, cStencilBits, cAuxBuffers, iLayerType, bReserved;
    DWORD dwLayerMask, dwVisibleMask, dwDamageMask;
};
static_assert(sizeof(PIXELFORMATDESCRIPTOR) == 40);

constexpr BOOL FALSE = 0;
constexpr BOOL TRUE = 1;
constexpr int MAX_PATH = 260;

// Window classes and styles.
constexpr UINT CS_VREDRAW = 0x0001;
constexpr UINT CS_HREDRAW = 0x0002;
constexpr UINT CS_OWNDC = 0x0020;
constexpr DWORD WS_POPUP = 0x80000000;
constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
constexpr DWORD WS_DLGFRAME = 0x00400000;
constexpr DWORD WS_EX_APPWINDOW = 0x00040000;
constexpr int GWL_STYLE = -16;
constexpr int SW_SHOW = 5;
inline const HWND HWND_TOPMOST = reinterpret_cast<HWND>(static_cast<std::intptr_t>(-1));

// The system's own resources, which have small numbers in place of names.
inline const LPCSTR IDI_WINLOGO = reinterpret_cast<LPCSTR>(static_cast<std::uintptr_t>(32517));
inline const LPCSTR IDC_ARROW = reinterpret_cast<LPCSTR>(static_cast<std::uintptr_t>(32512));

// Messages.
constexpr UINT WM_SIZE = 0x0005;
constexpr UINT WM_ACTIVATE = 0x0006;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_SYSKEYDOWN = 0x0104;
constexpr UINT WM_SYSKEYUP = 0x0105;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;
constexpr UINT WM_MBUTTONDOWN = 0x0207;
constexpr UINT WM_MBUTTONUP = 0x0208;
constexpr UINT PM_REMOVE = 0x0001;
constexpr WPARAM WA_INACTIVE = 0;
constexpr WPARAM WA_ACTIVE = 1;
constexpr WPARAM SIZE_RESTORED = 0;

// Virtual-key codes. Those of letters and digits are their ASCII codes, in upper case; those of the
// keypad's digits and of the function keys are consecutive.
constexpr int VK_BACK = 0x08;
constexpr int VK_TAB = 0x09;
constexpr int VK_CLEAR = 0x0C;
constexpr int VK_RETURN = 0x0D;
constexpr int VK_SHIFT = 0x10;
constexpr int VK_CONTROL = 0x11;
constexpr int VK_MENU = 0x12; // Alt
constexpr int VK_PAUSE = 0x13;
constexpr int VK_CAPITAL = 0x14; // Caps Lock
constexpr int VK_ESCAPE = 0x1B;
constexpr int VK_SPACE = 0x20;
constexpr int VK_PRIOR = 0x21; // Page Up; VK_NEXT follows
constexpr int VK_END = 0x23;
constexpr int VK_HOME = 0x24;
constexpr int VK_LEFT = 0x25; // VK_UP, VK_RIGHT and VK_DOWN follow
constexpr int VK_SNAPSHOT = 0x2C;
constexpr int VK_INSERT = 0x2D; // VK_DELETE follows
constexpr int VK_DELETE = 0x2E;
constexpr int VK_LWIN = 0x5B; // VK_RWIN follows
constexpr int VK_APPS = 0x5D;
constexpr int VK_NUMPAD0 = 0x60;
constexpr int VK_MULTIPLY = 0x6A; // VK_ADD, _SEPARATOR, _SUBTRACT, _DECIMAL, _DIVIDE follow
constexpr int VK_F1 = 0x70;
constexpr int VK_F4 = 0x73;
constexpr int VK_NUMLOCK = 0x90;
constexpr int VK_SCROLL = 0x91;

// Metrics, pixel formats, boxes, system parameters.
constexpr int SM_CXBORDER = 5;
constexpr int SM_CYBORDER = 6;
constexpr int HORZRES = 8;
constexpr int VERTRES = 10;
constexpr DWORD PFD_DOUBLEBUFFER = 0x00000001;
constexpr DWORD PFD_DRAW_TO_WINDOW = 0x00000004;
constexpr DWORD PFD_SUPPORT_OPENGL = 0x00000020;
constexpr BYTE PFD_TYPE_RGBA = 0;
constexpr UINT MB_OK = 0x00;
constexpr UINT MB_ICONEXCLAMATION = 0x30;
constexpr UINT MB_ICONINFORMATION = 0x40;
constexpr int IDOK = 1;
constexpr UINT SPI_SETSCREENSAVERRUNNING = 97;

constexpr WORD LOWORD(std::uintptr_t value)
{
    return static_cast<WORD>(value & 0xFFFF);
}

constexpr WORD HIWORD(std::uintptr_t value)
{
    return static_cast<WORD>((value >> 16) & 0xFFFF);
}

constexpr LPARAM MAKELPARAM(WORD low, WORD high)
{
    return static_cast<LPARAM>(low | (static_cast<std::uintptr_t>(high) << 16));
}

// With C linkage, as the system's own have.
extern "C" {

// Process.
HMODULE GetModuleHandleA(LPCSTR moduleName);
UINT GetWindowsDirectoryA(LPSTR buffer, UINT size);
BOOL SetCurrentDirectoryA(LPCSTR pathName);

// Windows.
ATOM RegisterClassA(const WNDCLASSA* windowClass);
BOOL UnregisterClassA(LPCSTR className, HINSTANCE instance);
HICON LoadIconA(HINSTANCE instance, LPCSTR iconName);
HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR cursorName);
BOOL AdjustWindowRectEx(RECT* rectangle, DWORD style, BOOL menu, DWORD extendedStyle);
HWND CreateWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x,
                     int y, int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                     LPVOID parameter);
BOOL DestroyWindow(HWND window);
BOOL ShowWindow(HWND window, int command);
BOOL SetForegroundWindow(HWND window);
HWND SetFocus(HWND window);
LONG GetWindowLongA(HWND window, int index);
LONG SetWindowLongA(HWND window, int index, LONG value);
BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags);

// Messages.
BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove);
LRESULT DispatchMessageA(const MSG* message);
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void PostQuitMessage(int exitCode);

// Cursor, screen, boxes, system parameters.
int ShowCursor(BOOL show);
BOOL GetCursorPos(POINT* position);
int GetSystemMetrics(int index);
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC deviceContext);
int GetDeviceCaps(HDC deviceContext, int index);
int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);
BOOL SystemParametersInfoA(UINT action, UINT parameter, LPVOID buffer, UINT flags);

// Pixel formats and OpenGL contexts.
int ChoosePixelFormat(HDC deviceContext, const PIXELFORMATDESCRIPTOR* descriptor);
BOOL SetPixelFormat(HDC deviceContext, int format, const PIXELFORMATDESCRIPTOR* descriptor);
BOOL SwapBuffers(HDC deviceContext);
HGLRC wglCreateContext(HDC deviceContext);
BOOL wglMakeCurrent(HDC deviceContext, HGLRC renderingContext);
BOOL wglDeleteContext(HGLRC renderingContext);
PROC wglGetProcAddress(LPCSTR name);

/// The program's entry, which platform/entry.cpp calls with the arguments joined by blanks.
int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int showCommand);

} // extern "C"
