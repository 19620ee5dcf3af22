#include "platform/desktop.h"
#include "platform/device_contexts.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

constinit std::vector<HGLRC> contexts; // not deleted yet

bool lives(HGLRC context)
{
    return std::find(contexts.begin(), contexts.end(), context) != contexts.end();
}

// A context's handle is the port's own pointer.
desktop::NativeContext nativeOf(HGLRC context)
{
    return reinterpret_cast<desktop::NativeContext>(context);
}

} // namespace

} // namespace platform

using namespace platform;

int ChoosePixelFormat(HDC deviceContext, const PIXELFORMATDESCRIPTOR* descriptor)
{
    const desktop::NativeWindow window = nativeOf(deviceContext);
    return window != 0 && descriptor != nullptr ? desktop::choosePixelFormat(window, *descriptor)
                                                : 0;
}

BOOL SetPixelFormat(HDC deviceContext, int format, const PIXELFORMATDESCRIPTOR* /*descriptor*/)
{
    const desktop::NativeWindow window = nativeOf(deviceContext);
    return window != 0 && desktop::setPixelFormat(window, format);
}

BOOL SwapBuffers(HDC deviceContext)
{
    const desktop::NativeWindow window = nativeOf(deviceContext);
    return window != 0 && desktop::swapBuffers(window);
}

HGLRC wglCreateContext(HDC deviceContext)
{
    const desktop::NativeWindow window = nativeOf(deviceContext);
    if (window == 0)
        return nullptr;
    const auto context = static_cast<HGLRC>(desktop::createContext(window));
    if (context != nullptr)
        contexts.push_back(context);
    return context;
}

BOOL wglMakeCurrent(HDC deviceContext, HGLRC renderingContext)
{
    if (renderingContext == nullptr)
        return desktop::makeCurrent(0, nullptr);
    const desktop::NativeWindow window = nativeOf(deviceContext);
    return window != 0 && lives(renderingContext) &&
           desktop::makeCurrent(window, nativeOf(renderingContext));
}

BOOL wglDeleteContext(HGLRC renderingContext)
{
    if (!lives(renderingContext) || !desktop::deleteContext(nativeOf(renderingContext)))
        return FALSE;
    std::erase(contexts, renderingContext);
    return TRUE;
}

PROC wglGetProcAddress(LPCSTR name)
{
    return name == nullptr ? nullptr : desktop::glProcedure(name);
}
