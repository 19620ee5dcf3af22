#pragma once

#include <cmath>
#include <cstdint>

/// Four floats in one SIMD register: a vector extension of GCC and clang. Arithmetic, comparison
/// and
/// ?: work lane by lane and round as scalar floats do. For a CPU without such registers the
/// compiler emits scalar code.
using Float4 __attribute__((vector_size(16))) = float;

/// The result of comparing two Float4: all bits of a lane are set where it is true.
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
