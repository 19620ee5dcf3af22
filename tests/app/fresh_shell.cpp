#include "tests/app/fresh_shell.h"

#include "app/gl_window.h"
#include "app/scene.h"
#include "app/shell_state.h"
#include "app/window_procedure.h"
#include "tests/support/gl_recorder.h"
#include "tests/support/headless_desktop.h"
#include "zrk/library_data.h"
#include "zrk/renderer.h"
#include "zrk/shaders/texture_units.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <vector>

namespace {

constinit FreshShell* current = nullptr;
constinit int swaps = 0;

std::string joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "; ";
    return text;
}

} // namespace

FreshShell::FreshShell()
{
    std::destroy_at(&zrk::libraryData);
    std::construct_at(&zrk::libraryData);
    std::destroy_at(&zrk::renderer);
    std::construct_at(&zrk::renderer);
    zrk::glCaches = {};
    headless_desktop::reset();
    gl_recorder::reset();
    glWindow = {};
    cursorTravel = {};
    keyDown = {};
    windowActive = true;
    animationTime = 0.0f;
    frameCounter = 0;
    swaps = 0;
    current = this;
    setenv("QUAZO_WINDOWS_DIRECTORY", "/nowhere", 1);
}

FreshShell::~FreshShell()
{
    DestroyWindow(glWindow.window);
    UnregisterClassA("OpenGL", glWindow.instance);
    while (ShowCursor(TRUE) < 1) {
    }
    ShowCursor(FALSE);
}

void FreshShell::makeData(const std::string& shaders)
{
    const TemporaryDirectory& directory = windowsDirectory.emplace();
    setenv("QUAZO_WINDOWS_DIRECTORY", directory.path.c_str(), 1);
    directory.write("###quazo!_data###/caustics.qvd", "textures\nshaders\n");
    directory.write("textures", "3\ndot.ppm\ndot.ppm\ndot.ppm\n");
    directory.write("dot.ppm", "P6 1 1 255\nabc");
    directory.write("shaders", shaders);
    std::filesystem::current_path("/"); // the shell finds its own way there
}

std::string requests()
{
    return joined(headless_desktop::takeRequests());
}

std::string glCalls()
{
    return joined(gl_recorder::takeCalls());
}

extern "C" {

HDC __real__Z5GetDCP6HWND__(HWND window);
HDC __wrap__Z5GetDCP6HWND__(HWND window)
{
    return current->refuseDeviceContexts ? nullptr : __real__Z5GetDCP6HWND__(window);
}

BOOL __real__Z11SwapBuffersP5HDC__(HDC deviceContext);
BOOL __wrap__Z11SwapBuffersP5HDC__(HDC deviceContext)
{
    const BOOL result = __real__Z11SwapBuffersP5HDC__(deviceContext);
    current->onSwap(++swaps);
    return result;
}

PROC __wrap__Z17wglGetProcAddressPKc(LPCSTR name)
{
    EXPECT_STREQ(name, "glActiveTextureARB");
    return reinterpret_cast<PROC>(reinterpret_cast<void (*)()>(gl_recorder::activeTexture));
}

void __wrap_SDL_Quit()
{
    gl_recorder::note("SDL_Quit");
}

} // extern "C"
