#pragma once

#include "surface/cell.h"
#include "surface/float4.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

struct Metaball;

/// A ball with each number that the sums need broadcast to four lanes.
struct FieldBall {
    Float4 x, y, z; ///< The centre.
    Float4 falloff;
    Float4 boundsCentre; ///< In the lanes x, y and z.
    float radius2;       ///< The square of its bounds' radius.
    /// A cell at a larger squared distance does not meet the bounds, and neither its samples nor
    /// those a `gradientStep` outside it are in the ball's field.
    float reach2;
};

/// An entry of a cell's list.
struct NearbyBall {
    const FieldBall* ball;
    std::array<Float4, 2> toOctants2; ///< Squared distances to octants 0 to 3 and 4 to 7.
};

/// For each depth, the balls near the visited cell of that depth: a stack of lists along the path
/// from the region to the cell being visited. A list holds, in array order, every ball whose field
/// reaches a sample of its cell, samples a `gradientStep` before a vertex included. The others
/// would add exactly 0, so a sum over the list equals the sum over all balls bit for bit.
class NearbyBalls {
public:
    /// Begins a frame: the list of depth 0, of the `region`, holds all `balls`, whose bounds must
    /// be in step with them. Memory is allocated only when the number of balls or of depths
    /// changes; without it `Cexception` is thrown.
    void begin(std::span<const Metaball> balls, const BoundingBox& region, std::uint32_t maxDepth);

    /// The list of the visited cell of `depth`.
    std::span<const NearbyBall> at(std::uint32_t depth) const
    {
        return {lists.get() + std::size_t{depth} * ballCount, counts[depth]};
    }

    /// Computes the distances of the balls near the visited cell of `depth` to its octants, whose
    /// planes are `lines`. The other functions on octants read them. Yields the octants, one bit
    /// each, that some ball's bounds meet.
    unsigned measureOctants(std::uint32_t depth, const GridLines& lines);

    /// The octants, one bit each, in which the field may reach `level` somewhere.
    unsigned octantsReaching(std::uint32_t depth, float level) const;

    /// Makes the list of the next depth that of an octant.
    void enterOctant(std::uint32_t depth, std::size_t octant);

private:
    std::uint32_t ballCount = 0;
    std::size_t depthCount = 0;
    std::unique_ptr<FieldBall[]> fieldBalls;
    std::unique_ptr<NearbyBall[]> lists; ///< `ballCount` entries per depth.
    std::unique_ptr<std::uint32_t[]> counts;

    void resize(std::uint32_t newBallCount, std::size_t newDepthCount);
};
