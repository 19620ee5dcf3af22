#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace caustics {

/// Where a point lies between the centres of four texels: the texels, and how far it has gone
/// from left to right and from upper to lower, in [0, 1].
struct TileSpot {
    int left, right, upper, lower;
    float across, down;
};

/// A square of numbers, row by row, that goes on into itself over its edges. Along a side the
/// texel centres lie at ½, 1½, 2½ … texels from the corner.
class Tile {
public:
    explicit Tile(int texelsPerSide)
        : texels(texelsPerSide),
          values(static_cast<std::size_t>(texelsPerSide) * static_cast<std::size_t>(texelsPerSide))
    {
    }

    int side() const { return texels; }
    float& at(int column, int row) { return values[index(column, row)]; }
    float at(int column, int row) const { return values[index(column, row)]; }

    double mean() const
    {
        double sum = 0.0;
        for (const float value : values)
            sum += static_cast<double>(value);
        return sum / static_cast<double>(values.size());
    }

    void scale(float factor)
    {
        for (float& value : values)
            value *= factor;
    }

    /// Shares `amount` out among the texels round (x, y), in texels from the corner; the point
    /// may lie anywhere on the endless plane.
    void add(float x, float y, float amount)
    {
        const TileSpot spot = spotAt(x, y);
        const float right = amount * spot.across;
        const float left = amount - right;
        at(spot.left, spot.upper) += left - left * spot.down;
        at(spot.right, spot.upper) += right - right * spot.down;
        at(spot.left, spot.lower) += left * spot.down;
        at(spot.right, spot.lower) += right * spot.down;
    }

    /// The value at (x, y), in texels from the corner, anywhere on the endless plane.
    float sample(float x, float y) const
    {
        const TileSpot spot = spotAt(x, y);
        const float upper =
            std::lerp(at(spot.left, spot.upper), at(spot.right, spot.upper), spot.across);
        const float lower =
            std::lerp(at(spot.left, spot.lower), at(spot.right, spot.lower), spot.across);
        return std::lerp(upper, lower, spot.down);
    }

private:
    std::size_t index(int column, int row) const
    {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(texels) +
               static_cast<std::size_t>(column);
    }

    int wrapped(int position) const
    {
        while (position < 0)
            position += texels;
        while (position >= texels)
            position -= texels;
        return position;
    }

    TileSpot spotAt(float x, float y) const
    {
        const float column = std::floor(x - 0.5f);
        const float row = std::floor(y - 0.5f);
        const int left = wrapped(static_cast<int>(column));
        const int upper = wrapped(static_cast<int>(row));
        return {.left = left,
                .right = wrapped(left + 1),
                .upper = upper,
                .lower = wrapped(upper + 1),
                .across = x - 0.5f - column,
                .down = y - 0.5f - row};
    }

    int texels;
    std::vector<float> values;
};

} // namespace caustics
