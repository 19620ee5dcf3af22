#include "platform/device_contexts.h"

#include "platform/window_handles.h"

#include <cstdint>

namespace platform {

namespace {

// A window has one device context as long as it exists; both handles are the same number.
HDC ownContextOf(HWND window)
{
    return reinterpret_cast<HDC>(window);
}

HWND windowOf(HDC deviceContext)
{
    return reinterpret_cast<HWND>(deviceContext);
}

// A number that no window handle reaches.
HDC screenContext()
{
    return reinterpret_cast<HDC>(UINTPTR_MAX);
}

} // namespace

desktop::NativeWindow nativeOf(HDC deviceContext)
{
    return nativeOf(windowOf(deviceContext));
}

} // namespace platform

using namespace platform;

HDC GetDC(HWND window)
{
    if (window == nullptr)
        return screenContext();
    return recordOf(window) == nullptr ? nullptr : ownContextOf(window);
}

int ReleaseDC(HWND window, HDC deviceContext)
{
    return deviceContext != nullptr && deviceContext == GetDC(window) ? 1 : 0;
}

int GetDeviceCaps(HDC deviceContext, int index)
{
    desktop::Size size;
    if (deviceContext != screenContext() && nativeOf(deviceContext) == 0)
        return 0;
    if (!desktop::size(size))
        return 0;
    switch (index) {
    case HORZRES:
        return size.width;
    case VERTRES:
        return size.height;
    default:
        return 0;
    }
}
