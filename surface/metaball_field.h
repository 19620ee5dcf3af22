#pragma once

#include "surface/vec3.h"

#include <span>

struct Metaball;

/// The field of all `balls` at a point in world space, summed in array order: results must not
/// depend on who asks. 0 without balls.
float fieldAt(std::span<const Metaball> balls, const Vec3& p);

/// The texture coordinate of a point on the surface where the field is `valueAtP`: x and y of the
/// outward direction brought from [-1, 1] to [0, 1], and its z as it is. A flat field gives
/// (0.5, 0.5, 0).
Vec3 surfaceTexCoord(std::span<const Metaball> balls, const Vec3& p, float valueAtP);
