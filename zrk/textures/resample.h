#pragma once

#include <SDL_video.h>

namespace zrk {

/// Fills `destination` by nearest-neighbour sampling of `source`, whose size is one that
/// `fitsSurface`: positions are 16.16 fixed point in 32 bits. The destination is not larger and has
/// the same depth: 8 bits, which copies indices, palette and colour key, or 32 bits, which
/// copies red, green and blue and makes every pixel opaque.
void resampleNearest(const SDL_Surface& source, SDL_Surface& destination);

} // namespace zrk
