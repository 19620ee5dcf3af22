#include "surface/frustum.h"

#include "surface/bounding_box.h"

#include <bit>

void Frustum::normalizePlanes()
{
    for (Plane& plane : planes)
        plane.normalize();
}

void Frustum::refreshSelectors()
{
    for (std::size_t i = 0; i < planeCount; ++i) {
        const Vec3& n = testedPlanes[i].n;
        const std::uint32_t low_x = n.x > 0.0f ? 0 : 1;
        const std::uint32_t low_y = n.y > 0.0f ? 0 : 1;
        const std::uint32_t low_z = n.z > 0.0f ? 0 : 1;
        selectors[i] = {low_x, 1 - low_x, low_y, 1 - low_y, low_z, 1 - low_z};
    }
}

std::uint8_t Frustum::classifyBox(BoundingBox& box, std::uint8_t inheritedMask) const
{
    unsigned contained = inheritedMask;
    unsigned untested = allPlanes & ~contained;
    const auto rejects = [&](std::size_t plane) {
        const Side side = sideOf(box, plane);
        if (side == Side::inside)
            contained |= 1u << plane;
        untested &= ~(1u << plane);
        return side == Side::outside;
    };

    // Plane coherency: neighbouring boxes tend to lie outside the same plane.
    const auto last = static_cast<std::size_t>(box.lastCullingPlane);
    if (box.lastCullingPlane >= 0 && (untested >> last & 1u) != 0 && rejects(last))
        return 0;
    for (std::size_t plane = 0; plane < planeCount; ++plane) {
        if ((untested >> plane & 1u) != 0 && rejects(plane)) {
            box.lastCullingPlane = static_cast<std::int32_t>(plane);
            return 0;
        }
    }
    return static_cast<std::uint8_t>(contained);
}

// The terms n.x x, n.y y and n.z z of a plane's distance take only three values each on the corners
// of all octants. Of an octant's two, the lesser belongs to its near corner and the greater to its
// far one: the product is monotonic, rounding included, so these are `sideOf`'s numbers.
OctantMasks Frustum::classifyOctants(BoundingBox& cell, unsigned octants,
                                     std::uint8_t inheritedMask) const
{
    const auto [low, middle, high] = gridLines(cell);
    const Int4 inherited = Int4{} + inheritedMask;
    OctantMasks contained{inherited, inherited};
    OctantMasks outside{};
    unsigned open = octants;
    unsigned untested = allPlanes & ~unsigned{inheritedMask};
    const std::int32_t last = cell.lastCullingPlane;
    int plane = last >= 0 && (untested >> last & 1u) != 0 ? last : std::countr_zero(untested);
    for (; untested != 0 && open != 0; plane = std::countr_zero(untested)) {
        untested &= ~(1u << plane);
        const std::int32_t bit = 1 << plane;
        const auto& [d, n] = testedPlanes[static_cast<std::size_t>(plane)];
        const Float4 normal{n.x, n.y, n.z};
        const Float4 atLow = normal * low;
        const Float4 atMiddle = normal * middle;
        const Float4 atHigh = normal * high;
        const auto near = octantSums(lesser(atLow, atMiddle), lesser(atMiddle, atHigh));
        const auto far = octantSums(greater(atLow, atMiddle), greater(atMiddle, atHigh));
        for (std::size_t half = 0; half < 2; ++half) {
            outside[half] |= near[half] + d > 0.0f;
            contained[half] |= (far[half] + d <= 0.0f) & Int4{bit, bit, bit, bit};
        }
        const unsigned left = octants & ~octantsWith(outside[0], outside[1]);
        if (left != open)
            cell.lastCullingPlane = plane;
        open = left;
    }
    return {contained[0] & ~outside[0], contained[1] & ~outside[1]};
}

// Distances grow with each coordinate or fall with it, rounding included, so the two selected
// corners bound those of all points of the box.
Frustum::Side Frustum::sideOf(const BoundingBox& box, std::size_t plane) const
{
    const auto& [low_x, high_x, low_y, high_y, low_z, high_z] = selectors[plane];
    const auto& corners = box.corners;
    const Vec3 near(corners[low_x].x, corners[low_y].y, corners[low_z].z);
    if (testedPlanes[plane].distance(near) > 0.0f)
        return Side::outside;
    const Vec3 far(corners[high_x].x, corners[high_y].y, corners[high_z].z);
    return testedPlanes[plane].distance(far) <= 0.0f ? Side::inside : Side::crossing;
}
