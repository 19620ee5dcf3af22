#pragma once

#include "surface/vec3.h"

#include <array>
#include <cstdint>

struct Sphere;

/// An axis-aligned box in world space.
struct BoundingBox {
    std::array<Vec3, 2> corners; ///< The minimum corner, then the maximum corner.

    /// The frustum plane that last rejected this box, or -1. `Frustum::classifyBox` tests it first
    /// and updates it.
    std::int32_t lastCullingPlane = -1;

    constexpr BoundingBox() = default;
    constexpr BoundingBox(const Vec3& minimum, const Vec3& maximum) : corners{minimum, maximum} {}

    constexpr Vec3& min() { return corners[0]; }
    constexpr Vec3& max() { return corners[1]; }
    constexpr const Vec3& min() const { return corners[0]; }
    constexpr const Vec3& max() const { return corners[1]; }

    /// Copies the corners of `other`; its own `lastCullingPlane` stays.
    constexpr void copyExtent(const BoundingBox& other) { corners = other.corners; }

    /// Whether the sphere meets the box; touching counts. A cell that meets a ball's sphere of
    /// influence may still hold no surface: it is visited in vain and draws nothing.
    /// `NearbyBalls` makes the same test for all octants of a cell at once, with the same rounding.
    bool intersects(const Sphere& sphere) const;
};
