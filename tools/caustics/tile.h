#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace caustics {

/// A point between the centres of four texels: their columns and rows, and the weights of the right
/// and the lower ones in bilinear interpolation, in [0, 1].
struct TileSpot {
    int left, right, upper, lower;
    float across, down;
};

/// A square array of numbers, row by row, that repeats periodically in x and in y. Texel centres
/// are at ½, 1½, 2½ … texels from the corner along a side.
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

    /// Adds `amount` to the four texels around (x, y) with bilinear weights. Coordinates are in
    /// texels from the corner, and periodic.
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

    /// The bilinear interpolation at (x, y), in texels from the corner, periodic.
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
