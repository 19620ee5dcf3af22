#pragma once

#include "surface/float4.h"
#include "surface/sphere.h"
#include "surface/vec3.h"

/// A quarter of a ball's share of the field at the squared distance `d2` from its centre. The share
/// is the quartic kernel (1 - d²/R²)² within the radius R and 0 from there on. With s = d²/2R² a
/// quarter of it is s² - s + 1/4; s is held at 1/2, where that is exactly 0.
///
/// Sums take the quarters and multiply once at the end: multiplying by 4 is exact, so the bits are
/// those of a sum of shares. Works on floats, and on Float4 lane by lane with the same rounding.
template <typename Real>
Real quarterShare(Real falloff, Real d2)
{
    const Real s = lesser(Real{} + 0.5f, falloff * d2);
    return s * s - s + 0.25f;
}

/// One source of the field: 1 at its centre, falling to 0 with zero slope at its radius.
struct Metaball {
    float radius = 100.0f;                    ///< Of influence, in world units.
    float falloff = 0.5f / (100.0f * 100.0f); ///< 0.5 / radius²: saves the field a division.
    Vec3 centre;
    Sphere bounds{100.0f, {}}; ///< Of influence: cells that it does not meet are dropped.

    /// The way to change a ball: `falloff`, which alone decides its field, and `bounds` follow.
    void set(const Vec3& newCentre, float newRadius);

    /// This ball's share of the field at a point in world space.
    float fieldAt(const Vec3& p) const { return fieldAt(p.x, p.y, p.z); }
    float fieldAt(float x, float y, float z) const
    {
        const float dx = x - centre.x;
        const float dy = y - centre.y;
        const float dz = z - centre.z;
        return 4.0f * quarterShare(falloff, dx * dx + dy * dy + dz * dz);
    }

    /// Makes `bounds` follow a centre and radius that were written without `set`.
    void syncBounds();
};

static_assert(sizeof(Metaball) == 36);
