#pragma once

#include "surface/plane.h"

#include <array>
#include <cstddef>
#include <cstdint>

struct BoundingBox;

/// The six planes that bound what is seen, in world space, with normals that point out of the view.
/// Bit i of a plane mask stands for plane i: 0 right, 1 left, 2 bottom, 3 top, 4 near, 5 far.
///
/// After a change of the view: write `planes`, `normalizePlanes`, copy `planes` to `testedPlanes`,
/// `refreshSelectors`. Boxes are tested against `testedPlanes`, to which the selectors must belong.
class Frustum {
public:
    static constexpr std::size_t planeCount = 6;
    static constexpr std::uint8_t allPlanes = (1u << planeCount) - 1;

    /// For one plane and each axis, the box corner (0 minimum, 1 maximum) with the lowest and the
    /// one with the highest value of `Plane::distance`.
    struct CornerSelector {
        std::uint32_t low_x, high_x, low_y, high_y, low_z, high_z;
    };

    std::array<CornerSelector, planeCount> selectors{};
    std::array<Plane, planeCount> planes;
    std::array<Plane, planeCount> testedPlanes;

    void normalizePlanes();
    void refreshSelectors();

    /// 0 when `box` lies wholly outside one plane; else `inheritedMask`, whose planes are known to
    /// contain the box and are not tested, with the bits of the other planes that contain all of
    /// it. A box that crosses all six planes gives 0 too, and counts as outside.
    std::uint8_t classifyBox(BoundingBox& box, std::uint8_t inheritedMask) const;

private:
    enum class Side { outside, crossing, inside };

    Side sideOf(const BoundingBox& box, std::size_t plane) const;
};
