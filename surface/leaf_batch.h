#pragma once

#include "surface/cell.h"
#include "surface/float4.h"
#include "surface/leaf_drawing.h"
#include "surface/nearby_balls.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// The points of a cell's 3 × 3 × 3 grid and the field there: x, y, z and the field in the lanes,
/// at the places that `gridPoint` gives.
using GridPoints = std::array<Float4, 27>;

/// The place of the grid point (x, y, z), each of them 0, 1 or 2. It is linear: the place of an
/// octant's corner is that of the same corner of octant 0 plus that of the octant's corner 0.
constexpr std::size_t gridPoint(std::size_t x, std::size_t y, std::size_t z)
{
    return 9 * x + 3 * y + z;
}

/// The leaves among the octants of one cell. Their vertices are computed together, four at a time
/// and each only once where octants share an edge; then the leaves are drawn one by one.
class LeafBatch {
public:
    /// Of the cell. Those at the corners of the leaves must be set before `draw`.
    GridPoints points{};

    /// Adds an octant as a leaf.
    void add(std::size_t octant, std::uint8_t caseIndex);

    /// Draws the leaves in the order in which they were added, and forgets them. `balls` must
    /// contain all that reach the cell.
    void draw(std::span<const NearbyBall> balls, float threshold);

private:
    /// Forwards and backwards along x, y and z.
    static constexpr std::size_t directionCount = 6;

    /// An edge of the grid has the number 32 * direction + the grid point that it starts at.
    /// Octants beside each other may run through it in opposite directions, which round
    /// differently: they have edges of different numbers then.
    static constexpr std::size_t numberCount = 32 * directionCount;

    struct Leaf {
        std::uint8_t octant, caseIndex;
    };

    std::size_t leafCount = 0;
    std::array<Leaf, cornerCount> leaves{};
    std::array<std::uint32_t, directionCount> crossedStarts{}; ///< One bit per grid point.
    std::array<std::uint8_t, numberCount> crossed{};           ///< Numbers of the crossed edges.
    std::array<EdgeVertex, numberCount> vertices{};            ///< By number; set where crossed.

    /// Fills `crossed` from `crossedStarts` and yields the count. The list goes on with three
    /// repeats, so that it can be read in groups of four.
    std::size_t listCrossedEdges();
};
