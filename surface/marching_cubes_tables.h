#pragma once

#include <array>
#include <cstdint>

/// The edges that the surface crosses, one bit an edge, by case index.
extern const std::array<std::uint32_t, 256> edgeTable;

/// The triangles of a case as triples of edges, in the order of drawing, ended by -1.
extern const std::array<std::array<std::int32_t, 16>, 256> triTable;
