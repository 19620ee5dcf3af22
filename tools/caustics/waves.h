#pragma once

#include <cstdint>
#include <vector>

namespace caustics {

/// One plane wave. It adds to the height, in metres at (x, y) and frame f,
/// amplitude · cos(2π (alongX · x + alongY · y) / tileSide − 2π · cycles · f / frameCount + phase).
/// Whole numbers of waves per tile and of cycles per loop make the water repeat exactly in space
/// and time.
struct Wave {
    int alongX;
    int alongY;
    int cycles;
    double amplitude;
    double phase;
};

constexpr int largestWaveNumber = 12; // waves per tile, in any direction

/// The waves of a light breeze, of random amplitude and phase: the 64 with the largest curvature,
/// scaled so that they focus sunlight near the floor. Weaker waves would leave it diffuse, stronger
/// ones would focus far above it.
std::vector<Wave> makeWaves(std::uint64_t seed);

} // namespace caustics
