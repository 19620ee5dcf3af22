#pragma once

#include "tools/caustics/tile.h"

#include <cstdint>
#include <vector>

namespace caustics {

/// A square picture of brightness levels from 0 to 255, row by row.
struct GreyPicture {
    int side = 0;
    std::vector<std::uint8_t> levels;
};

/// The tile `light`, whose mean over the set is 1, wrapped on a half sphere and seen from straight
/// above, as a picture of `side` texels along a side. With s and t from -1 to 1 over the picture,
/// the texel at (s, t) belongs to the unit normal (s, t, z), an orthographic projection: texture
/// coordinates are made of normals in the same way. On the half sphere the tile keeps lengths along
/// great circles through the pole (azimuthal equidistant projection) and spans it from rim to rim.
/// It is shaded towards the rim. Outside the disc the rim's light is repeated, for filters that
/// reach past it.
GreyPicture wrapOnSphere(const Tile& light, int side);

} // namespace caustics
