#pragma once

#include "surface/bounding_box.h"
#include "surface/float4.h"
#include "surface/vec3.h"

#include <array>
#include <cstddef>
#include <cstdint>

// The numbering of a cell's corners and edges. Corner k also names octant k of the cell, and bit k
// of a case index says that corner k lies outside the surface.
//
//        7 ------- 6
//       /|        /|        y
//      4 ------- 5 |        |  z
//      | |       | |        | /
//      | 3 ------|-2        |/
//      |/        |/         +---- x
//      0 ------- 1

inline constexpr std::size_t cornerCount = 8;
inline constexpr std::size_t edgeCount = 12;

inline constexpr std::uint8_t allInside = 0;
inline constexpr std::uint8_t allOutside = 255;

/// Per axis, 0 for a corner at the cell's minimum and 1 for one at its maximum.
struct CornerOffset {
    std::uint8_t x, y, z;
};

inline constexpr std::array<CornerOffset, cornerCount> cornerOffset{{
    {0, 0, 0},
    {1, 0, 0},
    {1, 0, 1},
    {0, 0, 1},
    {0, 1, 0},
    {1, 1, 0},
    {1, 1, 1},
    {0, 1, 1},
}};

/// The corners that an edge runs between. Crossings are interpolated in this direction. The other
/// one would round differently, so the direction is part of the picture.
struct EdgeCorners {
    std::uint8_t from, to;
};

inline constexpr std::array<EdgeCorners, edgeCount> edgeCorners{{
    {0, 1},
    {1, 2},
    {2, 3},
    {3, 0},
    {4, 5},
    {5, 6},
    {6, 7},
    {7, 4},
    {0, 4},
    {1, 5},
    {2, 6},
    {3, 7},
}};

/// The field at a cell's corners, in corner order.
using CornerValues = std::array<float, cornerCount>;

/// A corner in world space and the field there.
struct CornerSample {
    Vec3 position;
    float value = 0.0f;
};

using CornerSamples = std::array<CornerSample, cornerCount>;

/// A cell's minimum, middle and maximum, each with x, y and z in the lanes 0 to 2. The corners of
/// the cell's octants lie on these planes.
using GridLines = std::array<Float4, 3>;

constexpr Vec3 cornerPosition(const BoundingBox& box, std::size_t corner)
{
    const auto& [x, y, z] = cornerOffset[corner];
    return {box.corners[x].x, box.corners[y].y, box.corners[z].z};
}

/// The bits of the corners that lie outside the surface. NaN compares as outside.
constexpr std::uint8_t caseIndexOf(const CornerValues& values, float threshold)
{
    unsigned index = 0;
    for (std::size_t corner = 0; corner < cornerCount; ++corner)
        if (!(values[corner] >= threshold))
            index |= 1u << corner;
    return static_cast<std::uint8_t>(index);
}
