// What the kept picture costs a frame: the saver's own frames at 1024 x 768, drawn on the window's
// back buffer and on ours, and the copy of ours to the window by itself.

#define GL_GLEXT_PROTOTYPES

#include "app/gl_window.h"
#include "app/scene.h"
#include "app/shell_state.h"
#include "platform/x11/back_buffer.h"
#include "tests/support/virtual_display.h"

#include <benchmark/benchmark.h>
#include <GL/glext.h>
#include <GL/glx.h>

#include <cstdlib>

namespace {

constexpr platform::desktop::Size size{1024, 768};
constexpr GLuint windowsOwn = 0;
constexpr int framesPerRun = 128; // two rounds of the caustics

GLuint drawTarget()
{
    GLint bound = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &bound);
    return static_cast<GLuint>(bound);
}

/// Draws the same frames whatever ran before; `show` brings each one to the screen. The port's
/// pace is left out: it would hide every difference.
template <typename Show>
void drawFrames(benchmark::State& state, GLuint target, Show show)
{
    glBindFramebuffer(GL_FRAMEBUFFER, target);
    animationTime = 0.0f;
    frameCounter = 0;
    for (auto _ : state) {
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

void frameOnBackBuffer(benchmark::State& state, const platform::x11::BackBuffer& picture,
                       GLuint target)
{
    drawFrames(state, target, [&] {
        picture.present();
        swap();
    });
}

void copyToWindow(benchmark::State& state, const platform::x11::BackBuffer& picture)
{
    for (auto _ : state) {
        picture.present();
        glFinish();
    }
}

benchmark::internal::Benchmark* perFrame(benchmark::internal::Benchmark* bench)
{
    return bench->Iterations(framesPerRun)
        ->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime() // the driver draws in threads of its own
        ->UseRealTime();
}

} // namespace

int main(int argumentCount, char** arguments)
{
    benchmark::Initialize(&argumentCount, arguments);
    setenv("QUAZO_WINDOWS_DIRECTORY", QUAZO_BENCH_DATA, 0);
    const VirtualDisplay display;
    platform::x11::BackBuffer picture;
    if (!openGlWindow("swap_bench", size.width, size.height, 32) || !picture.create(size, GL_RGB16))
        return 1;
    const GLuint target = drawTarget();
    startScene();
    perFrame(benchmark::RegisterBenchmark("frameOnWindowsBuffer", frameOnWindowsBuffer));
    perFrame(benchmark::RegisterBenchmark("frameOnBackBuffer", frameOnBackBuffer, picture, target));
    perFrame(benchmark::RegisterBenchmark("copyToWindow", copyToWindow, picture));
    benchmark::RunSpecifiedBenchmarks();
    closeGlWindow();
    platform::desktop::disconnect();
}
