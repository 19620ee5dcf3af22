#include "surface/metaball.h"

void Metaball::set(const Vec3& newCentre, float newRadius)
{
    radius = newRadius;
    falloff = 0.5f / (newRadius * newRadius);
    centre = newCentre;
    syncBounds();
}

float Metaball::fieldAt(float x, float y, float z) const
{
    const float dx = x - centre.x;
    const float dy = y - centre.y;
    const float dz = z - centre.z;
    const float s = falloff * (dx * dx + dy * dy + dz * dz);
    if (s >= 0.5f)
        return 0.0f;
    return 4.0f * (s * s - s + 0.25f);
}

void Metaball::syncBounds()
{
    bounds.radius = radius;
    bounds.centre = centre;
}
