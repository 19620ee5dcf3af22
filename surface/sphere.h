#pragma once

#include "surface/vec3.h"

struct Sphere {
    float radius = 0.0f;
    Vec3 centre;
};

static_assert(sizeof(Sphere) == 16);
