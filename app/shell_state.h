#pragma once

#include <array>
#include <cstdint>

// The state that entry, window, camera and scene share. Messages change it, and those are handled
// between frames only.

/// Whether a key is held, by virtual-key code.
extern constinit std::array<bool, 256> keyDown;

/// False while the window is minimised. Losing the focus does not change it.
extern constinit bool windowActive;

/// The window's client area in pixels. Its first value is the size that the window is opened with.
extern constinit std::int32_t windowWidth;
extern constinit std::int32_t windowHeight;

/// The animation clock, which the balls and the surface's colour follow: 0.01 more per drawn frame,
/// 0 while Tab is held. The caustics follow `frameCounter` instead.
extern constinit float animationTime;
