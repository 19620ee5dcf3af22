#pragma once

#include "surface/metaball_surface.h"
#include "tests/support/surface_world.h"
#include "zrk/shaders/shader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

/// One surface in the saver's region, and where its balls are in many frames: so many that no
/// branch predictor learns them, spread over half a minute of animation.
class Film {
public:
    static constexpr std::size_t frameCount = 64;

    MetaballSurface surface;

    Film(std::uint32_t depth, std::uint32_t ballCount, std::uint32_t seed)
    {
        constexpr float timeBetweenFrames = 0.5f; // on the animation clock
        for (std::size_t frame = 0; frame < frameCount; ++frame) {
            const float time = timeBetweenFrames * static_cast<float>(frame);
            surface_world::setUp(surface, seed, time, ballCount);
            frames[frame].assign(surface.balls.get(), surface.balls.get() + ballCount);
        }
        surface.depthSetting = depth;
        surface.shader = &shader;
    }

    /// Frames repeat after the last one.
    void placeBalls(std::size_t frame)
    {
        std::ranges::copy(frames[frame % frameCount], surface.balls.get());
    }

private:
    zrk::Shader shader;
    std::array<std::vector<Metaball>, frameCount> frames;
};
