#include "platform/x11/render_scale.h"

#include "platform/x11/software_renderer.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace platform::x11 {

namespace {

// Processor time per pixel, measured: Mesa's llvmpipe draws the saver in 22 to 41 ns, more or less
// by the balls' motions; the server enlarges in 1.5 ns.
constexpr double drawingTime = 33e-9, enlargingTime = 1.5e-9; // seconds
constexpr double framePeriod = 1.0 / 60.0;                    // seconds

constinit int given = 0; // 0: none
constinit bool software = false;

double frameTime(double pixels, int scale)
{
    return pixels / (scale * scale) * drawingTime + (scale == 1 ? 0.0 : pixels * enlargingTime);
}

double coresToUse(unsigned int cores)
{
    return cores == 1 ? 0.5 : std::max(1.0, cores / 4.0);
}

} // namespace

int givenScale(const char* text)
{
    if (text == nullptr || *text == '\0')
        return 0;
    if (text[0] >= '1' && text[0] <= '0' + largestScale && text[1] == '\0')
        return text[0] - '0';
    std::fprintf(stderr, "quazo: QUAZO_RENDER_SCALE is no number from 1 to %d: %s\n", largestScale,
                 text);
    return 0;
}

int softwareScale(desktop::Size window, unsigned int cores)
{
    const double budget = framePeriod * coresToUse(cores);
    const double pixels = static_cast<double>(window.width) * window.height;
    int scale = 1;
    while (scale < largestScale && frameTime(pixels, scale) > budget)
        ++scale;
    return scale;
}

void chooseScaling(Display* display, bool possible)
{
    given = possible ? givenScale(std::getenv("QUAZO_RENDER_SCALE")) : 0;
    software = possible && drawsInSoftware(display);
}

int renderScale(desktop::Size window)
{
    if (given != 0)
        return given;
    return software ? softwareScale(window, std::thread::hardware_concurrency()) : 1;
}

desktop::Size pictureSize(desktop::Size window)
{
    const int scale = renderScale(window);
    return {(window.width + scale - 1) / scale, (window.height + scale - 1) / scale};
}

} // namespace platform::x11
