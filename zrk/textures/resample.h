#pragma once

#include <SDL_video.h>

namespace zrk {

/// Width and height of a source must be below this, in pixels: positions are 16.16 fixed point in
/// 32 bits. SDL 1.2 refuses 16384 columns and 65536 rows itself; a replacement for it may not.
inline constexpr int resampleLimit = 65536;

/// Fills `destination` by nearest-neighbour sampling of `source`. The destination is not larger
/// and has the same depth: 8 bits, which copies indices, palette and colour key, or 32 bits, which
/// copies red, green and blue and makes every pixel opaque.
void resampleNearest(const SDL_Surface& source, SDL_Surface& destination);

} // namespace zrk
