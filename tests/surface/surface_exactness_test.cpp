#include "surface/metaball_surface.h"
#include "tests/support/literal_surface.h"
#include "tests/support/surface_world.h"
#include "tests/support/vertex_sink.h"
#include "zrk/shaders/shader.h"

#include <gtest/gtest.h>

namespace {

/// Compares what a surface sends with what the literal version sends, bit for bit.
class SurfaceExactness : public ::testing::Test {
protected:
    MetaballSurface surface;
    zrk::Shader shader;

    SurfaceExactness()
    {
        surface_world::setUp(surface, 1);
        surface_world::seeBox(1e6f);
        surface.shader = &shader;
    }

    void setBalls(std::initializer_list<Sphere> balls)
    {
        surface.setBallCount(static_cast<std::uint32_t>(balls.size()));
        Metaball* ball = surface.balls.get();
        for (const auto& [radius, centre] : balls)
            (ball++)->set(centre, radius);
    }

    /// Yields the number of vertices sent.
    std::size_t expectSame(const std::string& what)
    {
        vertex_sink::keep();
        drawLiterally(surface);
        const std::vector<vertex_sink::Vertex> expected = vertex_sink::take();
        vertex_sink::keep();
        surface.polygonizeAndDraw();
        EXPECT_TRUE(vertex_sink::take() == expected) << what;
        return expected.size();
    }
};

} // namespace

TEST_F(SurfaceExactness, HoldsForRandomFramesAtEveryDepth)
{
    std::size_t sent = 0;
    for (std::uint32_t seed = 0; seed < 48; ++seed) {
        surface_world::setUp(surface, seed);
        surface.depthSetting = seed % 6 + 1;
        surface_world::seeBox(1e6f);
        sent += expectSame("whole, seed " + std::to_string(seed));
        surface_world::seeWindow(4.0f / 3.0f);
        expectSame("in view, seed " + std::to_string(seed));
    }
    surface.depthSetting = 7;
    sent += expectSame("deep");
    EXPECT_GT(sent, 100000u);
}
