#pragma once

#include "surface/cell.h"
#include "surface/float4.h"
#include "surface/metaball.h"
#include "surface/nearby_balls.h"
#include "surface/vec3.h"

#include <array>
#include <cstddef>
#include <span>

// The sums over the balls. Each goes in array order: a result must not depend on who asks. Those
// that the polygoniser spends its time in are inline.

/// How far back the differences look that a texture coordinate is made of.
constexpr float gradientStep = 0.1f; // world units

/// The field of all `balls` at a point in world space; 0 without balls.
float fieldAt(std::span<const Metaball> balls, const Vec3& p);

/// The field where a cell's lines meet: at x line a, y line b and z line e it is lane a of [b][e].
using Grid = std::array<std::array<Float4, 3>, 3>;

/// Four points in world space, one to a lane.
struct Points4 {
    Float4 x, y, z;
};

/// Four texture coordinates, one to a lane.
struct TexCoords4 {
    Float4 s, t;
};

/// Samples the grid of a cell that `lines` divide. The corners, which the cell's parent sampled
/// already, come out the same bit for bit; in rows of x that are needed anyway they cost nothing.
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
                sums[b][e] += fieldShare(ball.falloff, dx * dx + dy * dy + dz * dz);
            }
        }
    }
    return sums;
}

/// The texture coordinates of points on the surface: x and y of the outward direction brought from
/// [-1, 1] to [0, 1]. A flat field gives (0.5, 0.5).
inline TexCoords4 surfaceTexCoords(std::span<const NearbyBall> balls, const Points4& points)
{
    const auto& [x, y, z] = points;
    Float4 value{};
    Float4 beforeX{};
    Float4 beforeY{};
    Float4 beforeZ{};
    for (const NearbyBall& near : balls) {
        const FieldBall& ball = *near.ball;
        const Float4 dx = x - ball.x;
        const Float4 dy = y - ball.y;
        const Float4 dz = z - ball.z;
        const Float4 bx = x - gradientStep - ball.x;
        const Float4 by = y - gradientStep - ball.y;
        const Float4 bz = z - gradientStep - ball.z;
        value += fieldShare(ball.falloff, dx * dx + dy * dy + dz * dz);
        beforeX += fieldShare(ball.falloff, bx * bx + dy * dy + dz * dz);
        beforeY += fieldShare(ball.falloff, dx * dx + by * by + dz * dz);
        beforeZ += fieldShare(ball.falloff, dx * dx + dy * dy + bz * bz);
    }
    // The field falls outwards, so the backward differences point out of the surface.
    const Float4 gx = beforeX - value;
    const Float4 gy = beforeY - value;
    const Float4 gz = beforeZ - value;
    const Float4 length = squareRoots(gx * gx + gy * gy + gz * gz);
    const Float4 scale = length > 0.0f ? 1.0f / length : length;
    return {0.5f * (gx * scale) + 0.5f, 0.5f * (gy * scale) + 0.5f};
}
