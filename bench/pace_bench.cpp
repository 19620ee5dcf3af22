// The pace that a user sees: the saver on a screen of WIDTH x HEIGHT, with its frame clock. Prints
// the frames a second, and the processor time that a frame takes the saver and the X server. The
// seed chooses the balls' paths.
// QUAZO_RENDER_SCALE is 1, unless the environment has another or an empty one.

#include "app/gl_window.h"
#include "app/multitexture.h"
#include "app/scene.h"
#include "platform/desktop.h"
#include "platform/x11/display.h"
#include "tests/support/virtual_display.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <sys/socket.h>

namespace {

constexpr int warmUpFrames = 60; // until the picture has settled
constexpr int usualSeed = 3;

double processorTime(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// The clock of the process at the other end of the connection.
clockid_t serversClock()
{
    ucred peer{};
    socklen_t size = sizeof peer;
    getsockopt(ConnectionNumber(platform::x11::connection()), SOL_SOCKET, SO_PEERCRED, &peer,
               &size);
    clockid_t clock{};
    clock_getcpuclockid(peer.pid, &clock);
    return clock;
}

void drawFrames(int count)
{
    for (int frame = 0; frame < count; ++frame) {
        for (MSG message; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);)
            DispatchMessageA(&message);
        [[maybe_unused]] const bool drawn = drawFrame();
        SwapBuffers(glWindow.deviceContext);
    }
}

void measure(int frames)
{
    const clockid_t server = serversClock();
    const double saversStart = processorTime(CLOCK_PROCESS_CPUTIME_ID);
    const double serversStart = processorTime(server), start = processorTime(CLOCK_MONOTONIC);
    drawFrames(frames);
    const double perFrame = 1.0 / frames;
    std::printf("%6.1f frames/s, a frame: %6.2f ms saver, %5.2f ms server\n",
                1e3 * frames / (processorTime(CLOCK_MONOTONIC) - start),
                (processorTime(CLOCK_PROCESS_CPUTIME_ID) - saversStart) * perFrame,
                (processorTime(server) - serversStart) * perFrame);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 4 && argumentCount != 5) {
        std::fputs("pace_bench WIDTH HEIGHT FRAMES [SEED]\n", stderr);
        return 1;
    }
    const std::string screen = std::string(arguments[1]) + "x" + arguments[2] + "x24";
    const VirtualDisplay display(screen.c_str());
    setenv("QUAZO_WINDOWS_DIRECTORY", QUAZO_BENCH_DATA, 0);
    if (!openGlWindow("pace_bench", 800, 600, 32))
        return 1;
    coverScreen(glWindow.window);
    obtainMultitexture();
    std::srand(static_cast<unsigned>(argumentCount == 5 ? std::atoi(arguments[4]) : usualSeed));
    startScene();
    drawFrames(warmUpFrames);
    measure(std::atoi(arguments[3]));
    closeGlWindow();
    platform::desktop::disconnect();
}
