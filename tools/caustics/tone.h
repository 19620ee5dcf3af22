#pragma once

namespace caustics {

/// Light as the eye would take it in: from `light`, where 1 is the mean of the set, to a
/// brightness in [0, 1] that rises quickly, then bends so that filaments glow and do not burn.
float toneOf(float light);

} // namespace caustics
