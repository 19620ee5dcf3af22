#include "surface/frustum.h"

#include "surface/bounding_box.h"

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
