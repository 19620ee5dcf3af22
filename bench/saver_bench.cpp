// From the process's start to the first picture, and a whole frame of the running saver.

#include "app/gl_window.h"
#include "app/multitexture.h"
#include "app/scene.h"
#include "app/shell_state.h"
#include "platform/desktop.h"
#include "platform/frame_clock.h"
#include "platform/win32.h"
#include "tests/support/child_process.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/virtual_display.h"
#include "zrk/gl.h"
#include "zrk/library_data.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <memory>
#include <optional>

// A frame is measured, and not the monitor's pace: the linker takes this one.
void platform::FrameClock::awaitNextFrame() {}

namespace {

constexpr const char* dataFile = "###quazo!_data###/caustics.qvd";
constexpr const char* poolFile = "pool.txt";
constexpr int poolShaders = 10000;
constexpr int framesPerRound = 64; // one of the caustics

/// The saver's window, for the length of a benchmark. The data of a window goes with it: textures
/// and layers believe that their context has what they have sent once.
class WindowScope {
public:
    explicit WindowScope(int width = 800, int height = 600)
        : opened(openGlWindow("saver_bench", width, height, 32))
    {
    }
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

/// Adds what passes on `clock` while it lives to a counter, which is the mean of the iterations.
class TimeInto {
public:
    TimeInto(benchmark::State& state, const char* counter, clockid_t usedClock = CLOCK_MONOTONIC)
        : result(state.counters[counter]),
          clock(usedClock),
          start(milliseconds())
    {
        result.flags = benchmark::Counter::kAvgIterations;
    }
    ~TimeInto() { result.value += milliseconds() - start; }
    TimeInto(const TimeInto&) = delete;
    TimeInto& operator=(const TimeInto&) = delete;

private:
    double milliseconds() const
    {
        timespec time{};
        clock_gettime(clock, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
    }

    benchmark::Counter& result;
    clockid_t clock;
    double start;
};

void runFrame()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageA(&message);
    benchmark::DoNotOptimize(drawFrame());
    SwapBuffers(glWindow.deviceContext);
}

/// Everything that WinMain does until the first frame is on the screen, one of full HD.
void wholeStart(benchmark::State& state)
{
    while (state.KeepRunning()) {
        std::optional<WindowScope> window;
        {
            const TimeInto time(state, "window_ms");
            window.emplace();
            SetWindowPos(glWindow.window, HWND_TOPMOST, 0, 0, 1920, 1079, 0);
            obtainMultitexture();
        }
        {
            const TimeInto time(state, "scene_ms");
            startScene();
        }
        {
            const TimeInto time(state, "first_frame_ms");
            runFrame();
            glFinish();
        }
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}

/// Frames as fast as they come: messages, drawing, and the way to the screen.
void wholeFrame(benchmark::State& state)
{
    const WindowScope window(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    std::srand(1); // the same motions each time
    startScene();
    animationTime = 0.0f;
    frameCounter = 0;
    for (int frame = 0; frame < framesPerRound; ++frame) // the driver compiles, trails grow
        runFrame();
    glFinish();
    const TimeInto time(state, "main_thread_ms", CLOCK_THREAD_CPUTIME_ID);
    while (state.KeepRunning())
        runFrame();
    glFinish();
}

void parsePool(benchmark::State& state)
{
    const TemporaryDirectory directory; // it is the current one now
    std::ofstream file(poolFile);
    for (int i = 0; i < poolShaders; ++i)
        file << "shader" << i << "\n{\n  texture: " << i
             << ", linear, linear, repeat, repeat, modulate, <0, 0, 0, 0>\n  blend: one, one\n}\n";
    file.close();
    while (state.KeepRunning())
        benchmark::DoNotOptimize(zrk::ShaderPool().load(poolFile, nullptr));
}

void wholeTimes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
}

void screenSizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"width", "height"});
    benchmark->Args({800, 600})->Args({1280, 720})->Args({1920, 1080})->Args({3840, 2160});
}

BENCHMARK(processStart)->Iterations(10)->Apply(wholeTimes);
BENCHMARK(openAndCloseWindow)->Iterations(5)->Apply(wholeTimes);
BENCHMARK(loadDataSet)->Iterations(3)->Apply(wholeTimes);
BENCHMARK(uploadDataSet)->Iterations(3)->Apply(wholeTimes);
BENCHMARK(wholeStart)->Iterations(3)->Apply(wholeTimes);
BENCHMARK(wholeFrame)->Apply(screenSizes)->Iterations(framesPerRound)->Apply(wholeTimes);
BENCHMARK(parsePool)->Iterations(5)->Apply(wholeTimes);

} // namespace

int main(int argumentCount, char** arguments)
{
    benchmark::Initialize(&argumentCount, arguments);
    setenv("QUAZO_WINDOWS_DIRECTORY", QUAZO_BENCH_DATA, 0); // another data set can be measured
    SetCurrentDirectoryA(std::getenv("QUAZO_WINDOWS_DIRECTORY"));
    const VirtualDisplay display("3840x2160x24");
    benchmark::RunSpecifiedBenchmarks();
    platform::desktop::disconnect();
}
