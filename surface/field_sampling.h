#pragma once

#include "surface/cell.h"
#include "surface/float4.h"
#include "surface/metaball_field.h"
#include "surface/nearby_balls.h"

#include <array>
#include <cstddef>
#include <span>

// The field of the nearby balls, sampled at several points at once: one point per lane, so that the
// additions within a lane keep array order. The polygoniser spends most of its time here, hence
// inline.

/// The field on a cell's 3 × 3 × 3 grid, in rows along x: lanes 0 to 2 of [b][e] are those on line
/// b of y and line e of z.
using Grid = std::array<std::array<Float4, 3>, 3>;

/// Samples the grid of a cell whose parent has sampled the corners. 19 points are left: all three
/// of the five rows with a 1 in [b][e], and the middles of the other four, whose ends are corners.
/// The middles take the fourth lanes of the five:
///
///     [1][0] and the middle of [0][0]        [1][2] and the middle of [2][2]
///     [0][1] and the middle of [0][2]        [2][1] and the middle of [2][0]
///     [1][1]
inline Grid sampleGrid(std::span<const NearbyBall> balls, const GridLines& lines,
                       const CornerValues& corners)
{
    const auto& [low, middle, high] = lines;
    const Float4 x{low[0], middle[0], high[0], middle[0]};
    const Float4 yMiddleLow{middle[1], middle[1], middle[1], low[1]};
    const Float4 yMiddleHigh{middle[1], middle[1], middle[1], high[1]};
    const Float4 zMiddleLow{middle[2], middle[2], middle[2], low[2]};
    const Float4 zMiddleHigh{middle[2], middle[2], middle[2], high[2]};
    // The last row leaves its fourth lane idle and shares its differences with others.
    const Float4 y[]{yMiddleLow, broadcast(low[1]), yMiddleHigh, broadcast(high[1]), yMiddleLow};
    const Float4 z[]{broadcast(low[2]), zMiddleHigh, broadcast(high[2]), zMiddleLow, zMiddleLow};
    std::array<Float4, 5> sums{};
    for (const NearbyBall& near : balls) {
        const FieldBall& ball = *near.ball;
        const Float4 dx = x - ball.x;
        for (std::size_t row = 0; row < sums.size(); ++row) {
            const Float4 dy = y[row] - ball.y;
            const Float4 dz = z[row] - ball.z;
            sums[row] += quarterShare(ball.falloff, dx * dx + dy * dy + dz * dz);
        }
    }
    for (Float4& sum : sums)
        sum *= 4.0f;
    const auto& [row10, row01, row12, row21, row11] = sums;
    const CornerValues& c = corners;
    return {{{Float4{c[0], row10[3], c[1]}, row01, Float4{c[3], row01[3], c[2]}},
             {row10, row11, row12},
             {Float4{c[4], row21[3], c[5]}, row21, Float4{c[7], row12[3], c[6]}}}};
}

/// The texture coordinates of four points on the surface.
inline Coordinates<Float4> surfaceTexCoords(std::span<const NearbyBall> balls,
                                            const Coordinates<Float4>& points)
{
    BackwardSamples<Float4> samples;
    for (const NearbyBall& near : balls) {
        const FieldBall& ball = *near.ball;
        samples.add(ball.falloff, {ball.x, ball.y, ball.z}, points);
    }
    return samples.texCoord();
}
