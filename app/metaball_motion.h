#pragma once

#include "surface/vec3.h"

#include <cstdint>

inline constexpr std::uint32_t metaballCount = 12;

/// How one ball swings, on each axis for itself, and how large it is.
struct MetaballMotion {
    Vec3 amplitude; ///< Half the extent of the path, in world units.
    Vec3 frequency; ///< Radians per unit of the animation clock.
    Vec3 phase;     ///< In units of the animation clock.
    float radius = 0.0f;
};

// The motions of all balls; what stands at one index belongs to the ball of that index.
extern Vec3 amplitudes[metaballCount];
extern Vec3 frequencies[metaballCount];
extern Vec3 phases[metaballCount];
extern float radii[metaballCount];

/// The farthest that a ball's centre comes from the origin along an axis, in world units.
inline constexpr float amplitudeLimit = 800.0f;

/// Takes ten values of `rand`: amplitudes in [0, 800), frequencies in [-2, 2), phases in
/// [0, 2 pi), x, y and z of each, and a radius in [150, 500).
[[nodiscard]] MetaballMotion randomMotion();

/// Where the ball's centre is at `time` of the animation clock.
[[nodiscard]] Vec3 centreAt(const MetaballMotion& motion, float time);
