#pragma once

#include "tools/caustics/waves.h"

#include <span>
#include <vector>

namespace caustics {

/// The water at one row of points: height in metres, and slopes along x and y.
struct SurfaceRow {
    std::vector<float> height;
    std::vector<float> slopeX;
    std::vector<float> slopeY;
};

/// The moving water surface, a sum of waves, on a square grid of points evenly spaced over the
/// tile. `readRow` may be called from several threads.
class WaterSurface {
public:
    /// No wave has a wave number above `largestWaveNumber`.
    WaterSurface(std::span<const Wave> waves, int pointsPerSide);

    int pointsPerSide() const { return points; }

    /// Fills `out` for row `row` of the grid at frame `frame`.
    void readRow(int frame, int row, SurfaceRow& out) const;

private:
    std::vector<Wave> waves; // alongX is never negative
    int points;
    std::vector<float> cosines; // [wave number along x][column]
    std::vector<float> sines;
};

} // namespace caustics
