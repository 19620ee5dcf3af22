#pragma once

#include "tools/caustics/tile.h"

namespace caustics {

/// The light of the sun's disc from that of a point-like sun: convolves it with a Gaussian of the
/// standard deviation of the sun's image on the floor. The mean stays the same.
Tile spreadSunlight(const Tile& pointLight);

} // namespace caustics
