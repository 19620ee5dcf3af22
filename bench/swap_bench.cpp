// The time that our own back buffer takes per frame: the saver's frames at 1024 x 768, drawn on the
// window's back buffer and on ours, without and with the blit to the window, and that blit alone.

#include "app/gl_window.h"
#include "app/scene.h"
#include "app/shell_state.h"
#include "platform/back_buffer.h"
#include "tests/support/virtual_display.h"

#include <benchmark/benchmark.h>
#include <GL/glx.h>

#include <cstdlib>

namespace {

constexpr platform::desktop::Size size{1024, 768};
constexpr GLuint windowsOwn = 0;
constexpr int framesPerRun = 128; // two rounds of the caustics

constinit platform::BackBuffer picture;
constinit GLuint drawTarget = windowsOwn; // the framebuffer object, once it exists

/// Draws the same sequence of frames each time; `show` puts each one on the screen. Without the
/// port's frame clock, which would hide every difference.
template <typename Show>
void drawFrames(benchmark::State& state, GLuint target, Show show)
{
    glBindFramebuffer(GL_FRAMEBUFFER, target);
    animationTime = 0.0f;
    frameCounter = 0;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(drawFrame());
        show();
    }
}

void swap()
{
    glXSwapBuffers(glXGetCurrentDisplay(), glXGetCurrentDrawable());
}

void frameOnWindowsBuffer(benchmark::State& state)
{
    drawFrames(state, windowsOwn, swap);
}

void frameWithoutCopy(benchmark::State& state) // the difference that drawing with 16 bits makes
{
    drawFrames(state, drawTarget, swap);
}

void frameOnBackBuffer(benchmark::State& state)
{
    drawFrames(state, drawTarget, [] {
        picture.present();
        swap();
    });
}

void copyToWindow(benchmark::State& state)
{
    while (state.KeepRunning()) {
        picture.present();
        glFinish();
    }
}

void perFrame(benchmark::internal::Benchmark* bench)
{
    bench->Iterations(framesPerRun)->Unit(benchmark::kMillisecond)->UseRealTime();
    bench->MeasureProcessCPUTime(); // the driver draws in threads of its own
}

BENCHMARK(frameOnWindowsBuffer)->Apply(perFrame);
BENCHMARK(frameWithoutCopy)->Apply(perFrame);
BENCHMARK(frameOnBackBuffer)->Apply(perFrame);
BENCHMARK(copyToWindow)->Apply(perFrame);

} // namespace

int main(int argumentCount, char** arguments)
{
    benchmark::Initialize(&argumentCount, arguments);
    setenv("QUAZO_WINDOWS_DIRECTORY", QUAZO_BENCH_DATA, 0);
    setenv("QUAZO_RENDER_SCALE", "1", 1); // every pixel, as the window's back buffer has
    const VirtualDisplay display;
    if (!openGlWindow("swap_bench", size.width, size.height, 32) || !picture.create(size, GL_RGB16))
        return 1;
    GLint bound = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &bound);
    drawTarget = static_cast<GLuint>(bound);
    startScene();
    SwapBuffers(glWindow.deviceContext); // which puts the window on the screen
    benchmark::RunSpecifiedBenchmarks();
    closeGlWindow();
    platform::desktop::disconnect();
}
