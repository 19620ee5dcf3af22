#pragma once

#include "surface/vec3.h"

#include <array>
#include <cstddef>

/// A 4 x 4 matrix for column vectors, stored row by row:
///
///      0  1  2  3
///      4  5  6  7      a translation lies in 3, 7 and 11
///      8  9 10 11
///     12 13 14 15
///
/// OpenGL stores columns, so what it is handed is the transpose.
struct Matrix4 {
    std::array<float, 16> elements{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

    /// The rows `u`, `v`, `w` and (0, 0, 0, 1), without a translation.
    static constexpr Matrix4 fromRows(const Vec3& u, const Vec3& v, const Vec3& w)
    {
        return {{u.x, u.y, u.z, 0, v.x, v.y, v.z, 0, w.x, w.y, w.z, 0, 0, 0, 0, 1}};
    }

    static constexpr Matrix4 translation(float tx, float ty, float tz)
    {
        return {{1, 0, 0, tx, 0, 1, 0, ty, 0, 0, 1, tz, 0, 0, 0, 1}};
    }

    constexpr float& operator()(std::size_t row, std::size_t column)
    {
        return elements[4 * row + column];
    }
    constexpr float operator()(std::size_t row, std::size_t column) const
    {
        return elements[4 * row + column];
    }

    constexpr Matrix4& operator*=(const Matrix4& b);
};

static_assert(sizeof(Matrix4) == 64);

/// The map that does `b` first and then `a`.
constexpr Matrix4 operator*(const Matrix4& a, const Matrix4& b)
{
    Matrix4 product;
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            float sum = 0.0f;
            for (std::size_t k = 0; k < 4; ++k)
                sum += a(row, k) * b(k, column);
            product(row, column) = sum;
        }
    }
    return product;
}

constexpr Matrix4& Matrix4::operator*=(const Matrix4& b)
{
    return *this = *this * b;
}
