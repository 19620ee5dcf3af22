#pragma once

#include "surface/cell.h"
#include "surface/float4.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

struct Metaball;

/// A ball as the sums take it, each number in all four lanes.
struct FieldBall {
    Float4 x, y, z; ///< The centre.
    Float4 falloff;
    Float4 boundsCentre; ///< In the lanes x, y and z.
    float radius2;       ///< The square of its bounds' radius.
    float reach2; ///< At a larger squared distance from a cell neither it nor a sample is reached.
};

/// A ball as a cell knows it.
struct NearbyBall {
    const FieldBall* ball;
    std::array<Float4, 2> toOctants2; ///< Squared distances to octants 0 to 3 and 4 to 7.
};

/// The balls near the cell being visited and near each of the cells that it lies in, by depth. A
/// list holds, in array order, the balls that a sample of its cell can feel, vertices and what is a
/// `gradientStep` before them included. Those left out would add exactly 0 to each, so a sum over
/// the list is the sum over all balls, bit for bit.
class NearbyBalls {
public:
    /// Begins a frame: at depth 0, in the `region`, all `balls` are near. Their bounds must be in
    /// step with them. Room for the lists is kept while the numbers of balls and of depths stay the
    /// same; no memory for it is `Cexception`.
    void begin(std::span<const Metaball> balls, const BoundingBox& region, std::uint32_t maxDepth);

    /// The list of the cell being visited at `depth`, or of the one around it.
    std::span<const NearbyBall> at(std::uint32_t depth) const
    {
        return {lists.get() + std::size_t{depth} * ballCount, counts[depth]};
    }

    /// Measures the balls near the cell at `depth` against its octants, which `lines` divide.
    void measureOctants(std::uint32_t depth, const GridLines& lines);

    /// The measured octants, one bit each, in which the field may come up to `level` anywhere.
    unsigned octantsReaching(std::uint32_t depth, float level) const;

    /// Makes the list of the next depth that of a measured octant. False if no ball's bounds meet
    /// the octant.
    bool enterOctant(std::uint32_t depth, std::size_t octant);

private:
    std::uint32_t ballCount = 0;
    std::size_t depthCount = 0;
    std::unique_ptr<FieldBall[]> fieldBalls;
    std::unique_ptr<NearbyBall[]> lists; ///< `ballCount` places a depth.
    std::unique_ptr<std::uint32_t[]> counts;

    void resize(std::uint32_t newBallCount, std::size_t newDepthCount);
};
