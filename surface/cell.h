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

/// The middle is the minimum plus half the extent, not the mean of both ends: the two may round
/// differently.
inline GridLines gridLines(const BoundingBox& box)
{
    const Float4 low{box.min().x, box.min().y, box.min().z};
    const Float4 high{box.max().x, box.max().y, box.max().z};
    return {low, low + (high - low) * 0.5f, high};
}

/// A mask per octant of a cell, octants 0 to 3 and 4 to 7, one to a lane.
using OctantMasks = std::array<Int4, 2>;

inline std::uint8_t maskOf(const OctantMasks& masks, std::size_t octant)
{
    return static_cast<std::uint8_t>(masks[octant / 4][octant % 4]);
}

/// The octants, one bit each, for which a comparison is true: octants 0 to 3 and 4 to 7.
inline unsigned octantsWith(Int4 first, Int4 second)
{
    return laneBits(first) | laneBits(second) << 4;
}

/// For octants 0 to 3 and 4 to 7 of a cell, one to a lane, the sum x + y + z of terms that only
/// depend on whether the octant lies at the minimum or the maximum of that axis: `low` or `high`.
inline std::array<Float4, 2> octantSums(Float4 low, Float4 high)
{
    const Float4 x{low[0], high[0], high[0], low[0]};
    const Float4 z{low[2], low[2], high[2], high[2]};
    return {x + low[1] + z, x + high[1] + z};
}

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
