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

/// The texture coordinate (x, y) of a point on the surface, where the field is `valueAtP`; z is
/// that of the outward unit vector.
Vec3 surfaceTexCoord(std::span<const Metaball> balls, const Vec3& p, float valueAtP);

/// The field where a cell's lines meet: at x line a, y line b and z line e it is lane a of [b][e].
using Grid = std::array<std::array<Float4, 3>, 3>;

/// The coordinates of one point or vector, or, with Float4, of four: one to a lane.
template <typename Real>
struct Coordinates {
    Real x, y, z;
};

/// A field at a point, and one `gradientStep` before it along each axis.
template <typename Real>
struct BackwardSamples {
    Real value{};
    Coordinates<Real> before{};

    /// Adds the share of one ball, sampled at `p`.
    constexpr void add(const Real& falloff, const Coordinates<Real>& centre,
                       const Coordinates<Real>& p)
    {
        const Real dx = p.x - centre.x;
        const Real dy = p.y - centre.y;
        const Real dz = p.z - centre.z;
        const Real bx = p.x - gradientStep - centre.x;
        const Real by = p.y - gradientStep - centre.y;
        const Real bz = p.z - gradientStep - centre.z;
        value += fieldShare(falloff, dx * dx + dy * dy + dz * dz);
        before.x += fieldShare(falloff, bx * bx + dy * dy + dz * dz);
        before.y += fieldShare(falloff, dx * dx + by * by + dz * dz);
        before.z += fieldShare(falloff, dx * dx + dy * dy + bz * bz);
    }

    /// The unit vector in which the field falls, with x and y brought from [-1, 1] to [0, 1]: these
    /// two are the texture coordinate. A flat field gives (0.5, 0.5, 0).
    Coordinates<Real> texCoord() const
    {
        // The field falls outwards, so the backward differences point out of the surface.
        const Real gx = before.x - value;
        const Real gy = before.y - value;
        const Real gz = before.z - value;
        const Real length = squareRoot(gx * gx + gy * gy + gz * gz);
        const Real scale = length > 0.0f ? 1.0f / length : length;
        return {0.5f * (gx * scale) + 0.5f, 0.5f * (gy * scale) + 0.5f, gz * scale};
    }
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
