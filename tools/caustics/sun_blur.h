#pragma once

#include "tools/caustics/tile.h"

namespace caustics {

/// The light of the sun's disc, out of that of a point sun: spreads each texel's light over the
/// sun's image on the floor. The mean stays.
Tile spreadSunlight(const Tile& pointLight);

} // namespace caustics
