#include "tools/caustics/sun_blur.h"

#include "tools/caustics/light.h"
#include "tools/caustics/water.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace caustics {
namespace {

constexpr double sunRadius = 0.2665 * std::numbers::pi / 180.0; // angular, in radians

/// The standard deviation, in metres, of the sun's image on the floor: half the radius of a uniform
/// disc, after the light was refracted and has gone down the slanted path.
double spread()
{
    return 0.5 * waterDepth * std::tan(sunRadius) / (refractiveIndex * std::cos(refractedZenith()));
}

/// The weights of a Gaussian with standard deviation `sigma` in texels, from the centre outwards,
/// cut off at 4 sigma. Counted on both sides they sum to 1.
std::vector<float> gaussian(double sigma)
{
    const int reach = static_cast<int>(std::ceil(4.0 * sigma));
    std::vector<double> weights;
    double sum = 0.0;
    for (int i = 0; i <= reach; ++i) {
        weights.push_back(std::exp(-0.5 * i * i / (sigma * sigma)));
        sum += i == 0 ? weights.back() : 2.0 * weights.back();
    }
    std::vector<float> shares(weights.size());
    std::transform(weights.begin(), weights.end(), shares.begin(),
                   [sum](double weight) { return static_cast<float>(weight / sum); });
    return shares;
}

/// Convolves along the rows and transposes. Called twice it convolves along both axes, since a
/// Gaussian is separable.
Tile blurAcross(const Tile& tile, const std::vector<float>& weights)
{
    const int side = tile.side();
    Tile blurred(side);
    for (int row = 0; row < side; ++row)
        for (int column = 0; column < side; ++column) {
            float sum = weights[0] * tile.at(column, row);
            int left = column;
            int right = column;
            for (std::size_t i = 1; i < weights.size(); ++i) {
                left = left == 0 ? side - 1 : left - 1;
                right = right == side - 1 ? 0 : right + 1;
                sum += weights[i] * (tile.at(left, row) + tile.at(right, row));
            }
            blurred.at(row, column) = sum;
        }
    return blurred;
}

} // namespace

Tile spreadSunlight(const Tile& pointLight)
{
    const std::vector<float> weights = gaussian(spread() * pointLight.side() / tileSide);
    return blurAcross(blurAcross(pointLight, weights), weights);
}

} // namespace caustics
