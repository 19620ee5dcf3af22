#pragma once

#include "zrk/textures/owned_surface.h"

#include <SDL_video.h>

namespace zrk {

/// The pixel format of all colour images. On a little-endian machine the bytes in memory are R, G,
/// B, A, the layout of GL_RGBA with GL_UNSIGNED_BYTE.
extern const SDL_PixelFormat rgba32Format;

/// Returns a copy of `surface` in `rgba32Format`, or null if SDL cannot create it. Alpha channels
/// are kept; pixels of the colour key become transparent black.
OwnedSurface toRgba32(SDL_Surface& surface);

} // namespace zrk
