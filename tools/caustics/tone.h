#pragma once

namespace caustics {

/// The brightness in [0, 1] of `light`, where 1 is the mean of the set: exposure, the extended
/// Reinhard operator, which compresses highlights and reaches full brightness at a finite light,
/// and a contrast exponent.
float toneOf(float light);

} // namespace caustics
