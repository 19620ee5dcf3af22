#pragma once

#include <array>
#include <cstdint>

// What the entry, the window, the camera and the scene share. It changes between frames only,
// never while one is drawn.

/// By virtual-key code: whether the key is held.
extern constinit std::array<bool, 256> keyDown;

/// False while the window is minimised; a window that only lost the focus stays active.
extern constinit bool windowActive;

/// Size of the window's client area in pixels; first the size that the window is asked for.
extern constinit std::int32_t windowWidth;
extern constinit std::int32_t windowHeight;

/// The clock of the balls and of the surface's colour, advanced by every drawn frame. The
/// caustics do not follow it.
extern constinit float animationTime;
