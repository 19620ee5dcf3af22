// One frame's surface: the literal version and ours in one run, into a sink.

#include "surface/frustum.h"
#include "surface/metaball_surface.h"
#include "surface/view_frustum.h"
#include "tests/support/literal_surface.h"
#include "tests/support/surface_world.h"
#include "zrk/shaders/shader.h"

#include <array>
#include <benchmark/benchmark.h>

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

template <typename Draw>
void drawFrames(benchmark::State& state, bool wholeRegion, Draw draw)
{
    if (wholeRegion)
        surface_world::seeBox(1e6f);
    else
        surface_world::seeWindow(800.0f / 600.0f);
    Frames frames(state.range(0));
    for (auto _ : state)
        for (MetaballSurface& surface : frames.surfaces)
            draw(surface);
    state.counters["frame"] = benchmark::Counter(
        frameCount, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void drawOurs(MetaballSurface& surface)
{
    surface.polygonizeAndDraw();
}

void depths(benchmark::internal::Benchmark* benchmark)
{
    benchmark->DenseRange(4, 8)->Unit(benchmark::kMillisecond);
}

void fieldSample(benchmark::State& state)
{
    MetaballSurface surface;
    surface_world::setUp(surface, 1);
    Vec3 p(100, 200, -300);
    for (auto _ : state) {
        benchmark::DoNotOptimize(p);
        benchmark::DoNotOptimize(surface.fieldAt(p));
    }
}

void boxTest(benchmark::State& state)
{
    surface_world::seeWindow(800.0f / 600.0f);
    BoundingBox box({-75, 225, 0}, {0, 300, 75});
    for (auto _ : state) {
        benchmark::DoNotOptimize(box);
        benchmark::DoNotOptimize(viewFrustum.classifyBox(box, 0));
    }
}

} // namespace

BENCHMARK(fieldSample);
BENCHMARK(boxTest);
BENCHMARK_CAPTURE(drawFrames, literal_in_view, false, drawLiterally)->Apply(depths);
BENCHMARK_CAPTURE(drawFrames, ours_in_view, false, drawOurs)->Apply(depths);
BENCHMARK_CAPTURE(drawFrames, literal_whole, true, drawLiterally)->Apply(depths);
BENCHMARK_CAPTURE(drawFrames, ours_whole, true, drawOurs)->Apply(depths);
BENCHMARK_MAIN();
