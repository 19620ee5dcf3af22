#pragma once

#include <SDL_video.h>

#include <memory>

namespace zrk {

struct FreeSurface {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};

/// Owns an SDL surface.
using OwnedSurface = std::unique_ptr<SDL_Surface, FreeSurface>;

/// Whether a surface may have this size, in pixels: it has any, SDL 1.2 can address them, and they
/// are no more than 8192 x 8192, so that there is memory for them.
constexpr bool fitsSurface(int width, int height)
{
    return width > 0 && width < 16384 && height > 0 && height < 65536 && width * height <= 1 << 26;
}

} // namespace zrk
