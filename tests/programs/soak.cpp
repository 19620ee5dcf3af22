// Draws many frames of the saver without waiting between them, in a window whose size changes on
// the way, and prints memory and descriptors at 1 %, 10 % and 100 % of them. The argument is the
// number of frames. Status 1 after an OpenGL error, and if memory or descriptors have grown from 10
// % to 100 %.

#include "app/gl_window.h"
#include "app/scene.h"
#include "platform/desktop.h"
#include "tests/support/virtual_display.h"
#include "zrk/gl.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

constexpr long framesPerResize = 997; // no multiple of the caustics' cycle
constexpr long framesPerSwap = 250;   // a swap waits for the monitor
constexpr double mostGrowth = 1.3;    // the driver makes things late and keeps them

struct Usage {
    long residentKib = 0;
    std::ptrdiff_t descriptors = 0;
};

Usage usageNow()
{
    Usage now;
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages; // the second number is the resident pages
    now.residentKib = pages * 4;
    now.descriptors = std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    return now;
}

void resizeWindow(long frame)
{
    const int width = 16 + static_cast<int>(frame * 7 % 301), height = 16 + width % 200;
    SetWindowPos(glWindow.window, HWND_TOPMOST, 0, 0, width, height, 0);
    for (MSG message; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);)
        DispatchMessageA(&message);
}

bool drawOne(long frame)
{
    if (frame % framesPerResize == 0)
        resizeWindow(frame);
    if (!drawFrame() || glGetError() != GL_NO_ERROR)
        return false;
    return frame % framesPerSwap != 0 || SwapBuffers(glWindow.deviceContext);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const long frames = argumentCount > 1 ? std::atol(arguments[1]) : 0;
    const VirtualDisplay display("320x240x24");
    setenv("QUAZO_WINDOWS_DIRECTORY", QUAZO_WINDOWS, 1);
    if (frames < 100 || !openGlWindow("soak", 160, 120, 32))
        return 2;
    startScene();
    Usage tenth, last;
    for (long frame = 1; frame <= frames; ++frame) {
        if (!drawOne(frame)) {
            std::printf("an OpenGL error in frame %ld\n", frame);
            return 1;
        }
        if (frame != frames / 100 && frame != frames / 10 && frame != frames)
            continue;
        last = usageNow();
        tenth = frame <= frames / 10 ? last : tenth;
        std::printf("%9ld frames: %7ld KiB resident, %td descriptors\n", frame, last.residentKib,
                    last.descriptors);
        std::fflush(stdout);
    }
    closeGlWindow();
    platform::desktop::disconnect();
    const auto most = static_cast<long>(static_cast<double>(tenth.residentKib) * mostGrowth);
    return last.residentKib > most || last.descriptors > tenth.descriptors ? 1 : 0;
}
