#pragma once

#include "tools/caustics/tile.h"
#include "tools/caustics/water_surface.h"

namespace caustics {

constexpr int raysPerTexel = 3; // along a side; fewer leave a pattern where the light is thin

/// A point sun's light on the floor at frame `frame`, where 1 is what the sun would shed on a
/// plane that faces it. The water's grid decides the rays: the tile has `raysPerTexel` times
/// fewer texels per side than the water has points.
Tile castLight(const WaterSurface& water, int frame);

/// The angle of the refracted sun from the vertical, under calm water, in radians.
double refractedZenith();

} // namespace caustics
