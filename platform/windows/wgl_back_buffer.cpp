#include "platform/windows/wgl_back_buffer.h"

#include "platform/back_buffer.h"
#include "platform/frame_clock.h"
#include "platform/win32.h"
#include "platform/windows/gl_loading.h"
#include "platform/windows/wgl_procedure.h"

namespace platform {

namespace {

// The shell has one context, which is current on its one window until it is deleted.
constinit BackBuffer backBuffer;
constinit FrameClock frameClock;

desktop::Size clientSize(HDC deviceContext)
{
    RECT area{};
    GetClientRect(WindowFromDC(deviceContext), &area);
    return {area.right, area.bottom};
}

// Without this flag the driver may exchange the buffers, after which their contents are undefined.
bool swapsCopy(HDC deviceContext)
{
    PIXELFORMATDESCRIPTOR descriptor{};
    descriptor.nSize = sizeof descriptor;
    return DescribePixelFormat(deviceContext, GetPixelFormat(deviceContext), sizeof descriptor,
                               &descriptor) != 0 &&
           (descriptor.dwFlags & PFD_SWAP_COPY) != 0;
}

void createBackBuffer(HDC deviceContext)
{
    backBuffer = BackBuffer();
    if (loadGlEntryPoints())
        backBuffer.createBest(clientSize(deviceContext), swapsCopy(deviceContext));
}

// Vsync and, for drivers that do not wait, the clock. The system names the refresh rate in whole
// hertz, rounded down (59 for 59.94): a clock of one hertz more never holds back a frame that vsync
// has let pass.
void setPace(HDC deviceContext)
{
    constexpr Nanoseconds second = 1'000'000'000;
    constexpr int unknownRate = 1; // or 0: the hardware's default
    constexpr int usualRate = 60;
    const int told = GetDeviceCaps(deviceContext, VREFRESH);
    const int rate = told > unknownRate ? told : usualRate;
    const int refreshes = refreshesPerFrame(second / rate);
    using SetInterval = BOOL(WINAPI*)(int);
    if (const auto setInterval = wglProcedure<SetInterval>("wglSwapIntervalEXT"))
        setInterval(refreshes);
    frameClock.setPeriod(refreshes * second / (rate + 1));
}

} // namespace

void fitBackBufferToWindow()
{
    const HDC deviceContext = wglGetCurrentDC();
    if (deviceContext == nullptr)
        return;
    const desktop::Size size = clientSize(deviceContext);
    if (size.width > 0 && size.height > 0) // a minimised window has no area
        backBuffer.fit(size);
}

BOOL shell_calls::makeCurrent(HDC deviceContext, HGLRC renderingContext)
{
    if ((::wglMakeCurrent)(deviceContext, renderingContext) == FALSE)
        return FALSE;
    if (renderingContext != nullptr) {
        createBackBuffer(deviceContext);
        setPace(deviceContext);
    }
    return TRUE;
}

BOOL shell_calls::swapBuffers(HDC deviceContext)
{
    if (deviceContext == nullptr || deviceContext != wglGetCurrentDC())
        return FALSE;
    backBuffer.present();
    glFlush(); // the driver can draw while we wait
    frameClock.awaitNextFrame();
    return (::SwapBuffers)(deviceContext);
}

} // namespace platform
