#pragma once

#include "surface/vec3.h"

#include <array>
#include <cstdint>

struct Sphere;

/// An axis-aligned box in world space.
struct BoundingBox {
    std::array<Vec3, 2> corners; ///< The minimum corner, then the maximum corner.

    /// The frustum plane that last rejected this box, or -1. `Frustum::classifyBox` tries it first
    /// and keeps it up to date.
    std::int32_t lastCullingPlane = -1;

    constexpr BoundingBox() = default;
    constexpr BoundingBox(const Vec3& minimum, const Vec3& maximum) : corners{minimum, maximum} {}

    constexpr Vec3& min() { return corners[0]; }
    constexpr Vec3& max() { return corners[1]; }
    constexpr const Vec3& min() const { return corners[0]; }
    constexpr const Vec3& max() const { return corners[1]; }

    /// Takes the place of `other` in space, and keeps its own `lastCullingPlane`.
    constexpr void copyExtent(const BoundingBox& other) { corners = other.corners; }

    /// True as well when the two only touch. `NearbyBalls::enterOctant` works this out for all
    /// balls and octants of a cell at once, and must come to the same bits.
    bool intersects(const Sphere& sphere) const;
};
