#include "surface/bounding_box.h"

#include "surface/sphere.h"

namespace {

/// The squared distance from `c` to the interval from `low` to `high`.
float distance2(float c, float low, float high)
{
    if (c < low)
        return (c - low) * (c - low);
    if (c > high)
        return (c - high) * (c - high);
    return 0.0f;
}

} // namespace

// Arvo's test: the squared distance from the centre to the box is the sum of those along the axes.
bool BoundingBox::intersects(const Sphere& sphere) const
{
    const Vec3& centre = sphere.centre;
    const float sum = distance2(centre.x, min().x, max().x) +
                      distance2(centre.y, min().y, max().y) + distance2(centre.z, min().z, max().z);
    return sum <= sphere.radius * sphere.radius;
}
