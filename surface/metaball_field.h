#pragma once

#include "surface/float4.h"
#include "surface/metaball.h"
#include "surface/vec3.h"

#include <span>

// The field of all balls. Every sum goes over them in array order, so that a result does not depend
// on who asks: floating-point addition is not associative.

/// Step of the backward differences that estimate the normal: small beside balls and cells, large
/// beside the rounding of the field.
constexpr float gradientStep = 0.1f; // world units

/// The field of all `balls` at a point in world space; 0 without balls.
float fieldAt(std::span<const Metaball> balls, const Vec3& p);

/// The texture coordinate (x, y) of a point on the surface, where the field is `valueAtP`; z is
/// that of the outward unit vector.
Vec3 surfaceTexCoord(std::span<const Metaball> balls, const Vec3& p, float valueAtP);

/// The coordinates of one point or vector or, with Float4, of four, one per lane.
template <typename Real>
struct Coordinates {
    Real x, y, z;
};

/// A quarter of the field at a point, and one `gradientStep` before it along each axis. A template,
/// so that one vertex and four of them get the same bits from the same lines.
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
        value += quarterShare(falloff, dx * dx + dy * dy + dz * dz);
        before.x += quarterShare(falloff, bx * bx + dy * dy + dz * dz);
        before.y += quarterShare(falloff, dx * dx + by * by + dz * dz);
        before.z += quarterShare(falloff, dx * dx + dy * dy + bz * bz);
    }

    /// The unit vector along which the field falls, with x and y mapped from [-1, 1] to [0, 1]:
    /// these two are the texture coordinate. A flat field gives (0.5, 0.5, 0).
    Coordinates<Real> texCoord() const
    {
        // The field falls outwards, so the backward differences point out of the surface. They are
        // quarters, too, which the unit vector does not show, not even in its last bit.
        const Real gx = before.x - value;
        const Real gy = before.y - value;
        const Real gz = before.z - value;
        const Real length = squareRoot(gx * gx + gy * gy + gz * gz);
        const Real scale = length > 0.0f ? 1.0f / length : length;
        return {0.5f * (gx * scale) + 0.5f, 0.5f * (gy * scale) + 0.5f, gz * scale};
    }
};
