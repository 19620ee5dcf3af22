#include "app/gl_window.h"

#include "app/camera.h"
#include "app/window_procedure.h"
#include "zrk/shaders/texture_units.h"

constinit GlWindow glWindow;

namespace {

constexpr const char* className = "OpenGL";
constexpr DWORD windowStyle = WS_POPUP | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
constexpr DWORD extendedStyle = WS_EX_APPWINDOW;

// No depth, stencil or alpha: a frame is blended over the one before, and nothing is depth-tested.
constexpr PIXELFORMATDESCRIPTOR colorOnly()
{
    PIXELFORMATDESCRIPTOR descriptor{};
    descriptor.nSize = sizeof descriptor;
    descriptor.nVersion = 1;
    descriptor.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    descriptor.iPixelType = PFD_TYPE_RGBA;
    return descriptor;
}

constinit PIXELFORMATDESCRIPTOR pixelFormat = colorOnly(); // colour bits: set by the first request

bool refuse(const char* text)
{
    MessageBoxA(nullptr, text, "ERROR", MB_OK | MB_ICONEXCLAMATION);
    return false;
}

// Releases what was made so far before it shows the box, so that no window of ours is behind it.
bool giveUp(const char* text)
{
    closeGlWindow();
    return refuse(text);
}

void reportRelease(const char* text)
{
    MessageBoxA(nullptr, text, "SHUTDOWN ERROR", MB_OK | MB_ICONINFORMATION);
}

bool registerWindowClass()
{
    WNDCLASSA windowClass{};
    windowClass.style = CS_HREDRAW | CS_VREDRAW | CS_OWNDC;
    windowClass.lpfnWndProc = glWindowProc;
    windowClass.hInstance = glWindow.instance;
    windowClass.hIcon = LoadIconA(nullptr, IDI_WINLOGO);
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.lpszClassName = className;
    return RegisterClassA(&windowClass) != 0;
}

HWND createHiddenWindow(const char* title, int width, int height)
{
    RECT frame{0, 0, width, height};
    AdjustWindowRectEx(&frame, WS_POPUP, FALSE, extendedStyle);
    return CreateWindowExA(extendedStyle, className, title, windowStyle, 0, 0,
                           frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr,
                           glWindow.instance, nullptr);
}

void releaseRenderingContext()
{
    if (!wglMakeCurrent(nullptr, nullptr))
        reportRelease("Release Of DC And RC Failed.");
    if (!wglDeleteContext(glWindow.renderingContext))
        reportRelease("Release Rendering Context Failed.");
    glWindow.renderingContext = nullptr;
}

} // namespace

bool openGlWindow(const char* title, int width, int height, int colorBits)
{
    glWindow.instance = GetModuleHandleA(nullptr);
    if (!registerWindowClass())
        return refuse("Failed To Register The Window Class.");
    ShowCursor(FALSE);
    glWindow.window = createHiddenWindow(title, width, height);
    if (glWindow.window == nullptr)
        return giveUp("Window Creation Error.");
    if (pixelFormat.cColorBits == 0)
        pixelFormat.cColorBits = static_cast<BYTE>(colorBits);
    glWindow.deviceContext = GetDC(glWindow.window);
    if (glWindow.deviceContext == nullptr)
        return giveUp("Can't Create A GL Device Context.");
    const int format = ChoosePixelFormat(glWindow.deviceContext, &pixelFormat);
    if (format == 0)
        return giveUp("Can't Find A Suitable PixelFormat.");
    if (!SetPixelFormat(glWindow.deviceContext, format, &pixelFormat))
        return giveUp("Can't Set The PixelFormat.");
    glWindow.renderingContext = wglCreateContext(glWindow.deviceContext);
    if (glWindow.renderingContext == nullptr)
        return giveUp("Can't Create A GL Rendering Context.");
    if (!wglMakeCurrent(glWindow.deviceContext, glWindow.renderingContext))
        return giveUp("Can't Activate The GL Rendering Context.");
    zrk::beginContext();
    ShowWindow(glWindow.window, SW_SHOW);
    SetForegroundWindow(glWindow.window);
    SetFocus(glWindow.window);
    resizeGlView(width, height);
    SystemParametersInfoA(SPI_SETSCREENSAVERRUNNING, TRUE, nullptr, 0);
    return true;
}

void coverScreen(HWND window)
{
    const HDC screen = GetDC(nullptr);
    const int width = GetDeviceCaps(screen, HORZRES) + GetSystemMetrics(SM_CXBORDER) - 1;
    const int height = GetDeviceCaps(screen, VERTRES) + GetSystemMetrics(SM_CYBORDER) - 1;
    ReleaseDC(nullptr, screen);
    SetWindowLongA(window, GWL_STYLE,
                   GetWindowLongA(window, GWL_STYLE) & ~static_cast<LONG>(WS_DLGFRAME));
    // Meant: one row less than the screen has, 1024 x 767 on a desktop of 1024 x 768.
    SetWindowPos(window, HWND_TOPMOST, 0, 0, width, height - 1, 0);
    ShowCursor(FALSE);
}

// A handle is cleared when its release has failed. After a successful one it is not used again.
void closeGlWindow()
{
    if (glWindow.renderingContext != nullptr)
        releaseRenderingContext();
    if (glWindow.deviceContext != nullptr && !ReleaseDC(glWindow.window, glWindow.deviceContext)) {
        reportRelease("Release Device Context Failed.");
        glWindow.deviceContext = nullptr;
    }
    if (glWindow.window != nullptr && !DestroyWindow(glWindow.window)) {
        reportRelease("Could Not Release hWnd.");
        glWindow.window = nullptr;
    }
    if (!UnregisterClassA(className, glWindow.instance)) {
        reportRelease("Could Not Unregister Class.");
        glWindow.instance = nullptr;
    }
    SystemParametersInfoA(SPI_SETSCREENSAVERRUNNING, FALSE, nullptr, 0);
}
