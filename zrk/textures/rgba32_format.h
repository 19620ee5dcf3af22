#pragma once

#include "zrk/textures/texture.h"

#include <SDL_video.h>

namespace zrk {

/// The one layout of colour images: on a little-endian machine, the bytes R, G, B, A that
/// GL_RGBA with GL_UNSIGNED_BYTE takes.
extern const SDL_PixelFormat rgba32Format;

/// A copy of `surface` in `rgba32Format`; null when SDL cannot make it. Alpha channels are kept;
/// pixels of the colour key become transparent black.
OwnedSurface toRgba32(SDL_Surface& surface);

} // namespace zrk
