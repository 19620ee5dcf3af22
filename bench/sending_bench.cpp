// What a frame's surface costs beside its sending: frames polygonised without a call of OpenGL, the
// same leaves sent by themselves, and both as the saver does them. Every triangle is culled, so
// that nothing is filled.

#include "bench/film.h"
#include "surface/leaf_drawing.h"
#include "surface/marching_cubes_tables.h"
#include "tests/support/gl_test_context.h"
#include "tests/support/virtual_display.h"
#include "zrk/gl.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <array>
#include <span>
#include <vector>

namespace {

/// The leaves of a frame with the vertices of their crossed edges.
struct SentFrame {
    struct Leaf {
        std::size_t firstVertex;
        std::array<std::uint8_t, edgeCount> vertexOfEdge;
        std::uint8_t caseIndex;
    };

    std::vector<Leaf> leaves;
    std::vector<EdgeVertex> vertices;
};

enum class Leaves { sent, kept, dropped };

Leaves whatBecomesOfLeaves = Leaves::sent;
SentFrame* kept = nullptr;

void keepLeaf(std::span<const EdgeVertex> vertices,
              const std::array<std::uint8_t, edgeCount>& vertexOfEdge, std::uint8_t caseIndex)
{
    SentFrame::Leaf leaf{kept->vertices.size(), {}, caseIndex};
    std::uint8_t count = 0;
    for (std::size_t edge = 0; edge < edgeCount; ++edge) {
        if ((edgeTable[caseIndex] >> edge & 1u) != 0) {
            leaf.vertexOfEdge[edge] = count++;
            kept->vertices.push_back(vertices[vertexOfEdge[edge]]);
        }
    }
    kept->leaves.push_back(leaf);
}

} // namespace

/// The library's own `drawLeaf`, built under this name.
void sendLeaf(std::span<const EdgeVertex> vertices,
              const std::array<std::uint8_t, edgeCount>& vertexOfEdge, std::uint8_t caseIndex);

// What the polygoniser calls.
void drawLeaf(std::span<const EdgeVertex> vertices,
              const std::array<std::uint8_t, edgeCount>& vertexOfEdge, std::uint8_t caseIndex)
{
    if (whatBecomesOfLeaves == Leaves::sent)
        sendLeaf(vertices, vertexOfEdge, caseIndex);
    else if (whatBecomesOfLeaves == Leaves::kept)
        keepLeaf(vertices, vertexOfEdge, caseIndex);
}

namespace {

/// One iteration is one frame, until OpenGL is through with it.
template <typename DrawFrame>
void drawFrames(benchmark::State& state, Leaves leaves, DrawFrame drawFrame)
{
    whatBecomesOfLeaves = leaves;
    std::size_t frame = 0;
    for ([[maybe_unused]] auto _ : state) {
        drawFrame(frame++ % Film::frameCount);
        glFinish();
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    // The driver frees its memory after every glFinish here. The saver does not finish, so the
    // allocator must not hand pages back to the kernel and take them again.
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_MMAP_THRESHOLD, 1 << 25);

    benchmark::Initialize(&argumentCount, arguments);
    const VirtualDisplay display;
    const GlTestContext context({800, 600});
    glEnable(GL_CULL_FACE);
    glCullFace(GL_FRONT_AND_BACK);
    surface_world::seeWindow(800.0f / 600.0f);

    Film film(5, 12, 1);
    std::array<SentFrame, Film::frameCount> frames;
    const auto polygonize = [&](std::size_t frame) {
        film.placeBalls(frame);
        film.surface.polygonizeAndDraw();
    };
    whatBecomesOfLeaves = Leaves::kept;
    for (std::size_t frame = 0; frame < Film::frameCount; ++frame) {
        kept = &frames[frame];
        polygonize(frame);
    }
    const auto send = [&](std::size_t frame) {
        film.surface.shader->apply();
        const std::span<const EdgeVertex> vertices(frames[frame].vertices);
        for (const auto& [firstVertex, vertexOfEdge, caseIndex] : frames[frame].leaves)
            sendLeaf(vertices.subspan(firstVertex), vertexOfEdge, caseIndex);
    };

    benchmark::RegisterBenchmark("polygonized", [&](benchmark::State& state) {
        drawFrames(state, Leaves::dropped, polygonize);
    })->MeasureProcessCPUTime();
    benchmark::RegisterBenchmark("sent", [&](benchmark::State& state) {
        drawFrames(state, Leaves::sent, send);
    })->MeasureProcessCPUTime();
    benchmark::RegisterBenchmark("polygonizedAndSent", [&](benchmark::State& state) {
        drawFrames(state, Leaves::sent, polygonize);
    })->MeasureProcessCPUTime();
    benchmark::RunSpecifiedBenchmarks();
}
