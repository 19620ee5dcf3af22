#include "surface/metaball_field.h"

#include "surface/metaball.h"

namespace {

constexpr float gradientStep = 0.1f; // world units

} // namespace

float fieldAt(std::span<const Metaball> balls, const Vec3& p)
{
    float sum = 0.0f;
    for (const Metaball& ball : balls)
        sum += ball.fieldAt(p);
    return sum;
}

Vec3 surfaceTexCoord(std::span<const Metaball> balls, const Vec3& p, float valueAtP)
{
    // Backward differences: the field falls outwards, so they point out of the surface.
    Vec3 outward;
    for (const Metaball& ball : balls)
        outward += Vec3(ball.fieldAt(p.x - gradientStep, p.y, p.z),
                        ball.fieldAt(p.x, p.y - gradientStep, p.z),
                        ball.fieldAt(p.x, p.y, p.z - gradientStep));
    outward -= Vec3(valueAtP);
    outward.normalize();
    return {0.5f * outward.x + 0.5f, 0.5f * outward.y + 0.5f, outward.z};
}
