#include "surface/metaball.h"

void Metaball::set(const Vec3& newCentre, float newRadius)
{
    radius = newRadius;
    falloff = 0.5f / (newRadius * newRadius);
    centre = newCentre;
    syncBounds();
}

void Metaball::syncBounds()
{
    bounds.radius = radius;
    bounds.centre = centre;
}
