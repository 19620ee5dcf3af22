#pragma once

#include "surface/cell.h"
#include "surface/float4.h"

#include <array>
#include <cstdint>
#include <span>

/// Where the surface crosses an edge of a leaf cell, in world space, and its texture coordinate.
struct EdgeVertex {
    Float4 position; ///< In the lanes x, y and z.
    float s, t;
};

/// Sends the triangles of a leaf cell to OpenGL in immediate mode, between one begin and end, in
/// the order of `triTable`. `caseIndex` must have a triangle; `vertexOfEdge` says where among
/// `vertices` those of the crossed edges are.
void drawLeaf(std::span<const EdgeVertex> vertices,
              const std::array<std::uint8_t, edgeCount>& vertexOfEdge, std::uint8_t caseIndex);
