#include "surface/metaball_surface.h"
#include "tests/support/surface_world.h"
#include "tests/support/vertex_sink.h"
#include "zrk/shaders/shader.h"

#include <bit>
#include <cstdint>
#include <cstdio>
#include <random>

// Prints how many vertices a fixed series of surfaces sends, and a hash of all their bits (FNV-1a),
// so that two systems can be compared.
int main()
{
    MetaballSurface surface;
    const zrk::Shader shader;
    surface.shader = &shader;
    surface_world::seeBox(1e6f);
    std::mt19937 random(1);
    std::uint64_t hash = 0xcbf29ce484222325, count = 0;
    for (std::uint32_t frame = 0; frame < 70; ++frame) {
        surface_world::setUp(surface, frame);
        surface.depthSetting = frame % 7 + 1;
        // Places without a sine, which each system's library rounds in its own way.
        const auto coordinate = [&] { return static_cast<float>(random() % 1600) - 800.0f; };
        for (std::uint32_t i = 0; i < surface.ballCount; ++i)
            surface.balls[i].set({coordinate(), coordinate(), coordinate()},
                                 surface.balls[i].radius);
        vertex_sink::keep();
        surface.polygonizeAndDraw();
        for (const vertex_sink::Vertex& v : vertex_sink::take()) {
            for (const float value : {v.s, v.t, v.x, v.y, v.z})
                hash = (hash ^ std::bit_cast<std::uint32_t>(value)) * 0x100000001b3;
            ++count;
        }
    }
    std::printf("%llu vertices, hash %016llx\n", static_cast<unsigned long long>(count),
                static_cast<unsigned long long>(hash));
}
