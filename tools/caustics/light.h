#pragma once

#include "tools/caustics/tile.h"
#include "tools/caustics/water_surface.h"

namespace caustics {

constexpr int raysPerTexel = 3; // along a side; fewer leave a visible grid where light is sparse

/// The light of a point-like sun on the floor at frame `frame`, in multiples of its irradiance on a
/// plane that faces it: forward ray tracing, one ray for each of the water's points, each landing
/// on four texels of the floor. The tile has `raysPerTexel` times fewer texels along a side than
/// the water has points.
Tile castLight(const WaterSurface& water, int frame);

/// The angle between the vertical and the sunlight under calm water, in radians (Snell's law).
double refractedZenith();

} // namespace caustics
