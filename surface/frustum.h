#pragma once

#include "surface/cell.h"
#include "surface/plane.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// View-frustum culling of axis-aligned boxes, with three classic accelerations: of a box only the
/// corners nearest to and farthest along each plane's normal are tested (n-vertex and p-vertex),
/// planes that contain the parent are not tested again (plane masking), and the plane that rejected
/// the last box is tested first (plane coherency).
///
/// The six planes bound the view in world space; their normals point out of it. Bit i of a plane
/// mask stands for plane i: 0 right, 1 left, 2 bottom, 3 top, 4 near, 5 far.
///
/// After a change of the view: write `planes`, `normalizePlanes`, copy `planes` to `testedPlanes`,
/// `refreshSelectors`. Boxes are tested against `testedPlanes`, to which the selectors must belong.
class Frustum {
public:
    static constexpr std::size_t planeCount = 6;
    static constexpr std::uint8_t allPlanes = (1u << planeCount) - 1;

    /// For one plane and each axis, which corner of a box (0 minimum, 1 maximum) has the lowest
    /// and which the highest `Plane::distance`. Where the normal is 0 on an axis both have the
    /// same.
    struct CornerSelector {
        std::uint32_t low_x, high_x, low_y, high_y, low_z, high_z;
    };

    std::array<CornerSelector, planeCount> selectors{};
    std::array<Plane, planeCount> planes;
    std::array<Plane, planeCount> testedPlanes;

    /// Gives `planes` unit normals.
    void normalizePlanes();

    /// Makes `selectors` those of `testedPlanes`.
    void refreshSelectors();

    /// 0 when `box` lies wholly outside one plane; else `inheritedMask`, whose planes are known to
    /// contain the box and are not tested, with the bits of the other planes that contain all of
    /// it. A box that crosses all six planes gives 0 too, and counts as outside.
    ///
    /// A box outside the view but outside no single plane, near an edge of the frustum, passes.
    /// Such a false positive is harmless: OpenGL clips what is drawn of it.
    std::uint8_t classifyBox(BoundingBox& box, std::uint8_t inheritedMask) const;

    /// What `classifyBox` gives for each octant of `cell` whose bit is set in `octants`; the others
    /// are undefined. Tests all of them against a plane at once, first against the cell's
    /// `lastCullingPlane`, which becomes the plane that rejected an octant last.
    OctantMasks classifyOctants(BoundingBox& cell, unsigned octants,
                                std::uint8_t inheritedMask) const;

private:
    enum class Side { outside, crossing, inside };

    Side sideOf(const BoundingBox& box, std::size_t plane) const;
};
