#pragma once

/// Where the surface crosses the edge from `pa` to `pb`, taking the field between its values `va`
/// and `vb` at the ends to be linear. Works on a Vec3, and on a Float4 lane by lane.
template <typename Point>
constexpr Point crossingBetween(const Point& pa, const Point& pb, float va, float vb,
                                float threshold)
{
    const float mu = (threshold - va) / (vb - va);
    return pa + (pb - pa) * mu;
}
