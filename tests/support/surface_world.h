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

/// The saver's settings, with 12 balls at a random instant of random paths.
void setUp(MetaballSurface& surface, std::uint32_t seed);

} // namespace surface_world
