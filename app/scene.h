#pragma once

#include <cstdint>

/// Frames drawn since the start. It picks the shader of a frame, so that the caustics go on while
/// the animation clock is held at 0.
extern constinit std::uint32_t frameCounter;

/// Makes the Windows directory the current one, loads the data set from there, uploads the
/// textures, and gives the surface its settings and every ball a random motion. A context must be
/// current. When the data cannot be loaded, or the shaders pool is empty, shows a box and ends the
/// process with status 1; the system reclaims the window. An OpenGL error ends it with status -1.
void startScene();

/// Gives every ball a new random motion, from the C library's generator.
void randomizeMotions();

/// Fades the previous picture, draws the surface at the present time over it, and advances frame
/// counter and animation clock. A context must be current. Always true.
[[nodiscard]] bool drawFrame();
