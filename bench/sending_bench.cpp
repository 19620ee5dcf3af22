// What a frame's surface costs beside its sending: frames polygonised into OpenGL, and the same
// leaves sent by themselves. Every triangle is culled, so that nothing is filled.

#include "surface/leaf_drawing.h"
#include "surface/metaball_surface.h"
#include "tests/support/gl_test_context.h"
#include "tests/support/surface_world.h"
#include "tests/support/virtual_display.h"
#include "zrk/gl.h"
#include "zrk/shaders/shader.h"

#include <benchmark/benchmark.h>

#include <array>
#include <span>
#include <vector>

namespace {

constexpr std::uint32_t frameCount = 8;

constexpr std::array<std::uint8_t, edgeCount> edgeOrder{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};

struct Leaf {
    std::array<EdgeVertex, edgeCount> vertices; ///< In edge order.
    std::uint8_t caseIndex;
};

std::vector<Leaf>* leavesToKeep = nullptr;

} // namespace

/// The library's own `drawLeaf`, built under this name.
void sendLeaf(std::span<const EdgeVertex> vertices,
              const std::array<std::uint8_t, edgeCount>& vertexOfEdge, std::uint8_t caseIndex);

// What the polygoniser calls: keeps the leaf on demand.
void drawLeaf(std::span<const EdgeVertex> vertices,
              const std::array<std::uint8_t, edgeCount>& vertexOfEdge, std::uint8_t caseIndex)
{
    if (leavesToKeep != nullptr) {
        Leaf leaf{{}, caseIndex};
        for (std::size_t edge = 0; edge < edgeCount; ++edge)
            leaf.vertices[edge] = vertices[vertexOfEdge[edge]];
        leavesToKeep->push_back(leaf);
    }
    sendLeaf(vertices, vertexOfEdge, caseIndex);
}

namespace {

/// One iteration is one frame, of each of the surfaces in turn, until OpenGL is through with it.
template <typename DrawFrame>
void drawFrames(benchmark::State& state, DrawFrame drawFrame)
{
    std::uint32_t frame = 0;
    for ([[maybe_unused]] auto _ : state) {
        drawFrame(frame++ % frameCount);
        glFinish();
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    benchmark::Initialize(&argumentCount, arguments);
    const VirtualDisplay display;
    const GlTestContext context({800, 600});
    glEnable(GL_CULL_FACE);
    glCullFace(GL_FRONT_AND_BACK);
    surface_world::seeWindow(800.0f / 600.0f);
    zrk::Shader shader;
    std::array<MetaballSurface, frameCount> surfaces;
    std::array<std::vector<Leaf>, frameCount> leaves;
    for (std::uint32_t frame = 0; frame < frameCount; ++frame) {
        surface_world::setUp(surfaces[frame], frame);
        surfaces[frame].shader = &shader;
        leavesToKeep = &leaves[frame];
        surfaces[frame].polygonizeAndDraw();
    }
    leavesToKeep = nullptr;

    const auto sendingAlone = [&](std::uint32_t frame) {
        shader.apply();
        for (const auto& [vertices, caseIndex] : leaves[frame])
            sendLeaf(vertices, edgeOrder, caseIndex);
    };
    const auto polygonizedAndSent = [&](std::uint32_t frame) {
        surfaces[frame].polygonizeAndDraw();
    };
    benchmark::RegisterBenchmark("sendingAlone", [&](benchmark::State& state) {
        drawFrames(state, sendingAlone);
    })->UseRealTime();
    benchmark::RegisterBenchmark("polygonizedAndSent", [&](benchmark::State& state) {
        drawFrames(state, polygonizedAndSent);
    })->UseRealTime();
    benchmark::RunSpecifiedBenchmarks();
}
