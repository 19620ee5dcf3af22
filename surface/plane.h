#pragma once

#include "surface/vec3.h"

/// A plane in implicit form: the points p with n·p + d = 0.
struct Plane {
    float d = 0.0f;
    Vec3 n;

    /// The signed distance of `p`, positive on the side that `n` points to; in world units if the
    /// plane is normalised.
    constexpr float distance(const Vec3& p) const { return n.x * p.x + n.y * p.y + n.z * p.z + d; }

    /// Scales the plane so that `n` has length 1. `n` must not be zero.
    void normalize()
    {
        const float norm = n.length();
        d /= norm;
        n.set(n.x / norm, n.y / norm, n.z / norm);
    }
};

static_assert(sizeof(Plane) == 16);
