// From the process's start to the first picture, and a whole frame of the running saver.

#include "app/gl_window.h"
#include "app/multitexture.h"
#include "app/scene.h"
#include "platform/desktop.h"
#include "tests/support/child_process.h"
#include "tests/support/virtual_display.h"
#include "zrk/gl.h"
#include "zrk/library_data.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>

namespace {

constexpr const char* dataFile = "###quazo!_data###/caustics.qvd";
constexpr const char* poolFile = "saver_bench_pool.txt";
constexpr int poolShaders = 10000;

/// The saver's window, for the length of a benchmark. The data of a window goes with it: textures
/// and layers believe that their context has what they have sent once.
class WindowScope {
public:
    WindowScope() : opened(openGlWindow("saver_bench", 800, 600, 32)) {}
    ~WindowScope()
    {
        std::destroy_at(&zrk::libraryData);
        std::construct_at(&zrk::libraryData);
        closeGlWindow();
    }
    WindowScope(const WindowScope&) = delete;
    WindowScope& operator=(const WindowScope&) = delete;

    bool opened;
};

/// What the system takes to load the program and to end it: a command line that it quits on.
void processStart(benchmark::State& state)
{
    while (state.KeepRunning())
        ChildProcess({QUAZO_PROGRAM, "/p"}).wait();
}

void openAndCloseWindow(benchmark::State& state)
{
    while (state.KeepRunning()) {
        WindowScope window;
        benchmark::DoNotOptimize(window.opened);
    }
}

void loadDataSet(benchmark::State& state)
{
    while (state.KeepRunning())
        benchmark::DoNotOptimize(zrk::LibraryData().loadData(dataFile, nullptr));
}

void uploadDataSet(benchmark::State& state)
{
    const WindowScope window;
    while (state.KeepRunning()) {
        state.PauseTiming();
        zrk::LibraryData data;
        benchmark::DoNotOptimize(data.loadData(dataFile, nullptr));
        state.ResumeTiming();
        data.upload();
        glFinish();
    }
}

/// Everything that WinMain does before the second frame, and the window's end.
void wholeStart(benchmark::State& state)
{
    while (state.KeepRunning()) {
        const WindowScope window;
        coverScreen(glWindow.window);
        obtainMultitexture();
        startScene();
        benchmark::DoNotOptimize(drawFrame());
        SwapBuffers(glWindow.deviceContext);
    }
}

void wholeFrame(benchmark::State& state)
{
    const WindowScope window;
    startScene();
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(drawFrame());
        glFinish();
    }
}

void parsePool(benchmark::State& state)
{
    std::ofstream file(poolFile);
    for (int i = 0; i < poolShaders; ++i)
        file << "shader" << i << "\n{\n  texture: " << i
             << ", linear, linear, repeat, repeat, modulate, <0, 0, 0, 0>\n  blend: one, one\n}\n";
    file.close();
    while (state.KeepRunning())
        benchmark::DoNotOptimize(zrk::ShaderPool().load(poolFile, nullptr));
    std::remove(poolFile);
}

void wholeTimes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
}

BENCHMARK(processStart)->Iterations(10)->Apply(wholeTimes);
BENCHMARK(openAndCloseWindow)->Iterations(5)->Apply(wholeTimes);
BENCHMARK(loadDataSet)->Iterations(3)->Apply(wholeTimes);
BENCHMARK(uploadDataSet)->Iterations(3)->Apply(wholeTimes);
BENCHMARK(wholeStart)->Iterations(3)->Apply(wholeTimes);
BENCHMARK(wholeFrame)->Iterations(200)->Apply(wholeTimes);
BENCHMARK(parsePool)->Iterations(5)->Apply(wholeTimes);

} // namespace

int main(int argumentCount, char** arguments)
{
    benchmark::Initialize(&argumentCount, arguments);
    setenv("QUAZO_WINDOWS_DIRECTORY", QUAZO_BENCH_DATA, 1);
    SetCurrentDirectoryA(QUAZO_BENCH_DATA);
    const VirtualDisplay display("800x600x24");
    benchmark::RunSpecifiedBenchmarks();
    platform::desktop::disconnect();
}
