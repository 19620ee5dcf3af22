// Frames of the surface into a sink: the literal version, built with the release flags and with
// those of the surface's room, and ours. One run holds all three, so that their ratios can be
// trusted.

#include "bench/film.h"
#include "surface/frustum.h"
#include "surface/metaball_surface.h"
#include "surface/view_frustum.h"
#include "tests/support/literal_surface.h"
#include "tests/support/surface_world.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>

/// `drawLiterally`, built with the flags of the surface's room.
void drawLiterallyWithRoomFlags(const MetaballSurface& surface);

namespace {

/// One iteration is one frame. Arguments: depth, number of balls, seed.
template <typename Draw>
void drawFrames(benchmark::State& state, bool wholeRegion, Draw draw)
{
    if (wholeRegion)
        surface_world::seeBox(1e6f);
    else
        surface_world::seeWindow(800.0f / 600.0f);
    const auto argument = [&](std::size_t i) { return static_cast<std::uint32_t>(state.range(i)); };
    Film film(argument(0), argument(1), argument(2));
    draw(film.surface); // the first frame allocates
    std::size_t frame = 0;
    for ([[maybe_unused]] auto _ : state) {
        film.placeBalls(frame++);
        draw(film.surface);
    }
}

void drawOurs(MetaballSurface& surface)
{
    surface.polygonizeAndDraw();
}

/// The saver's own settings, for nine seeds.
void saverScenes(benchmark::internal::Benchmark* bench)
{
    bench->ArgNames({"depth", "balls", "seed"})->Unit(benchmark::kMicrosecond);
    for (std::int64_t seed = 1; seed <= 9; ++seed)
        bench->Args({5, 12, seed});
    bench->Iterations(benchmark::IterationCount{2} * Film::frameCount);
}

/// Other depths, and many balls: half a film, since the finest cells take long.
void otherScenes(benchmark::internal::Benchmark* bench)
{
    bench->ArgNames({"depth", "balls", "seed"})->Unit(benchmark::kMicrosecond);
    for (const std::int64_t depth : {4, 6, 7, 8})
        bench->Args({depth, 12, 1});
    bench->Args({5, 192, 1})->Iterations(Film::frameCount / 2);
}

BENCHMARK_CAPTURE(drawFrames, literal_in_view, false, drawLiterally)->Apply(saverScenes);
BENCHMARK_CAPTURE(drawFrames, literal_room_flags_in_view, false, drawLiterallyWithRoomFlags)
    ->Apply(saverScenes);
BENCHMARK_CAPTURE(drawFrames, ours_in_view, false, drawOurs)->Apply(saverScenes);
BENCHMARK_CAPTURE(drawFrames, literal_whole, true, drawLiterally)->Apply(saverScenes);
BENCHMARK_CAPTURE(drawFrames, literal_room_flags_whole, true, drawLiterallyWithRoomFlags)
    ->Apply(saverScenes);
BENCHMARK_CAPTURE(drawFrames, ours_whole, true, drawOurs)->Apply(saverScenes);

BENCHMARK_CAPTURE(drawFrames, literal_in_view, false, drawLiterally)->Apply(otherScenes);
BENCHMARK_CAPTURE(drawFrames, ours_in_view, false, drawOurs)->Apply(otherScenes);
BENCHMARK_CAPTURE(drawFrames, literal_whole, true, drawLiterally)->Apply(otherScenes);
BENCHMARK_CAPTURE(drawFrames, ours_whole, true, drawOurs)->Apply(otherScenes);

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

BENCHMARK(fieldSample);

void boxTest(benchmark::State& state)
{
    surface_world::seeWindow(800.0f / 600.0f);
    BoundingBox box({-75, 225, 0}, {0, 300, 75});
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(box);
        benchmark::DoNotOptimize(viewFrustum.classifyBox(box, 0));
    }
}

BENCHMARK(boxTest);

} // namespace

BENCHMARK_MAIN();
