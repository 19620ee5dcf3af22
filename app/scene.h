#pragma once

#include <cstdint>

/// Frames drawn so far. The caustics follow it, so that they go on while the clock stands still.
extern constinit std::uint32_t frameCounter;

/// Loads the data that lies under the Windows directory, which becomes the current one, uploads
/// the textures, and gives the surface its settings and every ball a random motion. A context must
/// be current. Without data, or without a single shader, a box says so and the process ends with
/// status 1; its window is left to the system.
void startScene();

/// Draws new random paths and radii for all balls.
void drawMotions();

/// Darkens the picture and draws the surface over it, then moves the clock on. Always true.
[[nodiscard]] bool drawFrame();
