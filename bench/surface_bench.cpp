// One frame's surface: the literal version and ours in one run, into a sink.

#include "surface/frustum.h"
#include "surface/metaball_surface.h"
#include "surface/view_frustum.h"
#include "tests/support/literal_surface.h"
#include "tests/support/surface_world.h"
#include "zrk/shaders/shader.h"

#include <benchmark/benchmark.h>

#include <array>
#include <string>

namespace {

constexpr std::uint32_t frameCount = 8;

/// Several surfaces, each at a random instant, so that no single one decides.
class Frames {
public:
    std::array<MetaballSurface, frameCount> surfaces;

    explicit Frames(std::int64_t depth)
    {
        for (std::uint32_t seed = 0; seed < frameCount; ++seed) {
            surface_world::setUp(surfaces[seed], seed);
            surfaces[seed].depthSetting = static_cast<std::uint32_t>(depth);
            surfaces[seed].shader = &shader;
        }
    }

private:
    zrk::Shader shader;
};

/// One iteration is one frame, of each of the surfaces in turn.
template <typename Draw>
void drawFrames(benchmark::State& state, bool wholeRegion, Draw draw)
{
    if (wholeRegion)
        surface_world::seeBox(1e6f);
    else
        surface_world::seeWindow(800.0f / 600.0f);
    Frames frames(state.range(0));
    std::uint32_t frame = 0;
    for ([[maybe_unused]] auto _ : state)
        draw(frames.surfaces[frame++ % frameCount]);
}

void drawOurs(MetaballSurface& surface)
{
    surface.polygonizeAndDraw();
}

void fieldSample(benchmark::State& state)
{
    MetaballSurface surface;
    surface_world::setUp(surface, 1);
    Vec3 p(100, 200, -300);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(p);
        benchmark::DoNotOptimize(surface.fieldAt(p));
    }
}

void boxTest(benchmark::State& state)
{
    surface_world::seeWindow(800.0f / 600.0f);
    BoundingBox box({-75, 225, 0}, {0, 300, 75});
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(box);
        benchmark::DoNotOptimize(viewFrustum.classifyBox(box, 0));
    }
}

/// Whole rounds of the frames, and about as long at every depth.
template <typename Draw>
void measure(const char* name, int depth, bool wholeRegion, Draw draw)
{
    benchmark::RegisterBenchmark(name, drawFrames<Draw>, wholeRegion, draw)
        ->Arg(depth)
        ->Iterations(benchmark::IterationCount{frameCount} << 2 * (8 - depth))
        ->Unit(benchmark::kMicrosecond);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RegisterBenchmark("fieldSample", fieldSample);
    benchmark::RegisterBenchmark("boxTest", boxTest);
    for (int depth = 4; depth <= 8; ++depth) {
        measure("drawFrames/literal_in_view", depth, false, drawLiterally);
        measure("drawFrames/ours_in_view", depth, false, drawOurs);
        measure("drawFrames/literal_whole", depth, true, drawLiterally);
        measure("drawFrames/ours_whole", depth, true, drawOurs);
    }
    benchmark::RunSpecifiedBenchmarks();
}
