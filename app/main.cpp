#include "app/about.h"
#include "app/command_line.h"
#include "app/gl_window.h"
#include "app/multitexture.h"
#include "app/random_seeder.h"
#include "app/scene.h"
#include "app/shell_state.h"
#include "platform/win32.h"

#include <optional>

namespace {

constexpr int colorBits = 32;

/// Dispatches every waiting message. The exit code of WM_QUIT if that is among them.
std::optional<int> drainMessages()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT)
            return static_cast<int>(message.wParam);
        DispatchMessageA(&message);
    }
    return std::nullopt;
}

/// Draws and shows one frame; false once the run is over. While the window is minimised nothing is
/// drawn, but the buffers are swapped and Escape still counts.
bool runFrame()
{
    if (windowActive && !drawFrame())
        return false;
    if (keyDown[VK_ESCAPE])
        return false;
    SwapBuffers(glWindow.deviceContext);
    return true;
}

/// Draws frames until the user ends the run, and returns the exit status: the code of WM_QUIT, or 0
/// after Escape. Tab holds the balls at their places of time 0.
int runFrames()
{
    for (bool done = false; !done;) {
        if (const std::optional<int> quitCode = drainMessages())
            return *quitCode;
        done = !runFrame();
        if (keyDown[VK_TAB])
            animationTime = 0.0f;
    }
    return 0;
}

int runSaver()
{
    if (!openGlWindow(saverTitle, windowWidth, windowHeight, colorBits))
        return 0;
    coverScreen(glWindow.window);
    obtainMultitexture();
    startScene();
    const int exitStatus = runFrames();
    closeGlWindow();
    return exitStatus;
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR commandLine, int)
{
    const RandomSeeder seeder;
    switch (modeFor(commandLine)) {
    case Mode::run:
        return runSaver();
    case Mode::about:
        showAboutBox();
        return 0;
    case Mode::quit:
        return 0;
    }
    return 0;
}
