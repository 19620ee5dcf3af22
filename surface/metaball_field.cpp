#include "surface/metaball_field.h"

float fieldAt(std::span<const Metaball> balls, const Vec3& p)
{
    float sum = 0.0f;
    for (const Metaball& ball : balls)
        sum += ball.fieldAt(p);
    return sum;
}
