#pragma once

#include "surface/vec3.h"

#include <cstdint>

inline constexpr std::uint32_t metaballCount = 12;

/// The path of one ball, a harmonic oscillation along each axis, and its radius.
struct MetaballMotion {
    Vec3 amplitude;      ///< Half the extent of the path, in world units.
    Vec3 frequency;      ///< Angular frequency, in radians per unit of the animation clock.
    Vec3 phase;          ///< Added to the animation clock, in its units.
    float radius = 0.0f; ///< In world units.
};

// The motions of all balls: entry i of each array belongs to ball i. `scene` fills them.
extern Vec3 amplitudes[metaballCount];
extern Vec3 frequencies[metaballCount];
extern Vec3 phases[metaballCount];
extern float radii[metaballCount];

/// The largest coordinate that a ball's centre can have, in world units.
inline constexpr float amplitudeLimit = 800.0f;

/// A motion from ten values of `rand`, in this order: amplitudes in [0, 800), frequencies in
/// [-2, 2) and phases in [0, 2 pi), x, y and z of each; the radius in [150, 500).
[[nodiscard]] MetaballMotion randomMotion();

/// The centre of a ball with this motion at `time` of the animation clock, in world space. Along x:
/// amplitude * sin((time + phase) * frequency); y has the cosine, z the sine.
[[nodiscard]] Vec3 centreAt(const MetaballMotion& motion, float time);
