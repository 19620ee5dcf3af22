#pragma once

#include <cmath>
#include <cstdint>

/// Four floats side by side, one to a lane: arithmetic, comparison and choice go lane by lane and
/// round as those of single floats do. Where a CPU has no such vectors the compiler takes them
/// apart.
using Float4 __attribute__((vector_size(16))) = float;

/// What comparing two Float4 yields: all bits of a lane where it is true, none where it is not.
using Int4 __attribute__((vector_size(16))) = std::int32_t;

/// The same float in every lane.
constexpr Float4 broadcast(float x)
{
    return Float4{x, x, x, x};
}

inline float squareRoot(float x)
{
    return std::sqrt(x);
}

inline Float4 squareRoot(Float4 x)
{
    return Float4{std::sqrt(x[0]), std::sqrt(x[1]), std::sqrt(x[2]), std::sqrt(x[3])};
}
