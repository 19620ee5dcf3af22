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

/// Samples the grid of a cell, a row of x at a time. The eight corners, which the cell's parent has
/// sampled, come out with the same bits: their lanes would be idle otherwise.
inline Grid sampleGrid(std::span<const NearbyBall> balls, const GridLines& lines)
{
    const Float4 x{lines[0][0], lines[1][0], lines[2][0], lines[2][0]};
    Grid sums;
    for (auto& plane : sums)
        plane.fill(Float4{});
    for (const NearbyBall& near : balls) {
        const FieldBall& ball = *near.ball;
        const Float4 dx = x - ball.x;
        for (std::size_t b = 0; b < 3; ++b) {
            const Float4 dy = lines[b][1] - ball.y;
            for (std::size_t e = 0; e < 3; ++e) {
                const Float4 dz = lines[e][2] - ball.z;
                sums[b][e] += quarterShare(ball.falloff, dx * dx + dy * dy + dz * dz);
            }
        }
    }
    for (auto& plane : sums)
        for (Float4& row : plane)
            row *= 4.0f;
    return sums;
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
