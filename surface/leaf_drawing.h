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

/// One vertex per edge, in edge order; those of edges that are not crossed are not read.
using EdgeVertices = std::array<EdgeVertex, edgeCount>;

/// Sends the triangles of a leaf cell to OpenGL in immediate mode, between one begin and end, in
/// the order of `triTable`. `caseIndex` must have a triangle.
void drawLeaf(const EdgeVertices& vertices, std::uint8_t caseIndex);
