#pragma once

#include "surface/cell.h"
#include "surface/float4.h"

#include <array>
#include <cstdint>

/// Where the surface crosses an edge of a leaf cell, in world space, and its texture coordinate.
struct EdgeVertex {
    Float4 position; ///< In the lanes x, y and z.
    float s, t;
};

/// One vertex an edge, in edge order; those of the edges not crossed are not looked at.
using EdgeVertices = std::array<EdgeVertex, edgeCount>;

/// Sends the triangles of a leaf cell to OpenGL, as one primitive, in the order of `triTable`.
void drawLeaf(const EdgeVertices& vertices, std::uint8_t caseIndex);
