#pragma once

#include "tools/caustics/tile.h"

#include <cstdint>
#include <vector>

namespace caustics {

/// A square picture of brightness levels, row by row, 0 to 255.
struct GreyPicture {
    int side = 0;
    std::vector<std::uint8_t> levels;
};

/// The light, of mean 1 over the set, as a half sphere wears it that is seen from straight above:
/// the texel in direction (s, t) of the disc shows the outward direction whose x and y are
/// (s, t). The tile spans the half sphere from rim to rim along great circles, and darkens
/// towards the rim. Outside the disc the rim goes on, so that no filter reaches past it.
GreyPicture wrapOnSphere(const Tile& light, int side);

} // namespace caustics
