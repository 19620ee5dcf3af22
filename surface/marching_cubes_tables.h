#pragma once

#include <array>
#include <cstdint>

// The 256-case tables of marching cubes, as published, for the numbering of `cell.h`.

/// The edges that the surface crosses, one bit per edge, by case index.
extern const std::array<std::uint32_t, 256> edgeTable;

/// The triangles of a case as triples of edges, in drawing order, ended by -1.
extern const std::array<std::array<std::int32_t, 16>, 256> triTable;
