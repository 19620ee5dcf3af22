#pragma once

#include "surface/frustum.h"

#include <cstdint>

class MetaballSurface;

/// Stands in for the program around a surface: `viewFrustum` is a frustum of its own.
namespace surface_world {

/// Lets the surface see a box about the origin that reaches `half` world units each way, with the
/// planes in the camera's order.
void seeBox(float half);

/// Lets the surface see what the camera of a window with this aspect ratio shows.
void seeWindow(float aspect);

/// The saver's settings, with balls on random paths like the saver's: where they are at `time` on
/// the animation clock.
void setUp(MetaballSurface& surface, std::uint32_t seed, float time = 0.0f,
           std::uint32_t ballCount = 12);

} // namespace surface_world
