#include "surface/metaball_field.h"

float fieldAt(std::span<const Metaball> balls, const Vec3& p)
{
    float sum = 0.0f;
    for (const Metaball& ball : balls)
        sum += ball.fieldAt(p);
    return sum;
}

Vec3 surfaceTexCoord(std::span<const Metaball> balls, const Vec3& p, float valueAtP)
{
    BackwardSamples<float> samples;
    for (const auto& [radius, falloff, centre, bounds] : balls)
        samples.add(falloff, {centre.x, centre.y, centre.z}, {p.x, p.y, p.z});
    samples.value = 0.25f * valueAtP; // the caller's, as the declaration says; usually the same
    const auto [s, t, z] = samples.texCoord();
    return {s, t, z};
}
