#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

#ifdef __SSE__
#include <xmmintrin.h>
#endif

/// Four floats in one SIMD register: a vector extension of GCC and clang. Arithmetic, comparison
/// and choice (?:) work lane by lane and round as scalar floats do. For a CPU without such
/// registers the compiler emits scalar code.
using Float4 __attribute__((vector_size(16))) = float;

/// The result of comparing two Float4: all bits of a lane are set where it is true.
using Int4 __attribute__((vector_size(16))) = std::int32_t;

/// The same float in every lane.
constexpr Float4 broadcast(float x)
{
    return Float4{x, x, x, x};
}

/// The lesser of `a` and `b`; `b` if one of them is NaN.
inline float lesser(float a, float b)
{
    return a < b ? a : b;
}

inline Float4 lesser(Float4 a, Float4 b)
{
#ifdef __SSE__
    return _mm_min_ps(a, b); // compilers make several instructions of the line below
#else
    return a < b ? a : b;
#endif
}

/// The greater of `a` and `b`; `b` if one of them is NaN.
inline Float4 greater(Float4 a, Float4 b)
{
#ifdef __SSE__
    return _mm_max_ps(a, b);
#else
    return a > b ? a : b;
#endif
}

/// One bit per lane, set where the comparison was true.
inline unsigned laneBits(Int4 comparison)
{
#ifdef __SSE__
    return static_cast<unsigned>(_mm_movemask_ps(std::bit_cast<Float4>(comparison)));
#else
    const Int4 bits = comparison & Int4{1, 2, 4, 8};
    return static_cast<unsigned>(bits[0] | bits[1] | bits[2] | bits[3]);
#endif
}

inline float squareRoot(float x)
{
    return std::sqrt(x);
}

inline Float4 squareRoot(Float4 x)
{
    return Float4{std::sqrt(x[0]), std::sqrt(x[1]), std::sqrt(x[2]), std::sqrt(x[3])};
}
