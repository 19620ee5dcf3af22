#pragma once

#include <cstdint>
#include <vector>

namespace caustics {

/// One plane wave of the water, as its share of the height in metres at (x, y) and frame f:
/// amplitude · cos(2π (alongX · x + alongY · y) / tileSide − 2π · cycles · f / frameCount + phase).
/// Whole numbers of waves per tile and of cycles per loop make both repeat exactly.
struct Wave {
    int alongX;
    int alongY;
    int cycles;
    double amplitude;
    double phase;
};

constexpr int largestWaveNumber = 12; // waves per tile, in any direction

/// The waves of a light wind, those that bend the light most. They are scaled together so that
/// the light gathers on the floor: weaker ones leave it hazy, stronger ones fold it over itself.
std::vector<Wave> makeWaves(std::uint64_t seed);

} // namespace caustics
