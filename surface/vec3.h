#pragma once

#include <cmath>

/// A point or direction in three dimensions, in world units unless said otherwise.
struct Vec3 {
    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;

    constexpr Vec3() = default;
    constexpr Vec3(float x0, float y0, float z0) : x(x0), y(y0), z(z0) {}
    constexpr explicit Vec3(float s) : x(s), y(s), z(s) {}

    constexpr void set(float x0, float y0, float z0) { *this = Vec3(x0, y0, z0); }

    constexpr Vec3& operator+=(const Vec3& b)
    {
        x += b.x;
        y += b.y;
        z += b.z;
        return *this;
    }

    constexpr Vec3& operator-=(const Vec3& b)
    {
        x -= b.x;
        y -= b.y;
        z -= b.z;
        return *this;
    }

    float length() const { return std::sqrt(x * x + y * y + z * z); }

    /// Makes the length 1; the zero vector stays as it is.
    void normalize();
};

static_assert(sizeof(Vec3) == 12);

constexpr Vec3 operator+(const Vec3& a, const Vec3& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

constexpr Vec3 operator-(const Vec3& a, const Vec3& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

constexpr Vec3 operator*(const Vec3& a, float s)
{
    return {a.x * s, a.y * s, a.z * s};
}

constexpr Vec3 cross(const Vec3& a, const Vec3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline void Vec3::normalize()
{
    const float norm = length();
    *this = *this * (norm > 0.0f ? 1.0f / norm : norm);
}
