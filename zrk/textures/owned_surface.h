#pragma once

#include <SDL_video.h>

#include <memory>

namespace zrk {

struct FreeSurface {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};

/// Owns an SDL surface.
using OwnedSurface = std::unique_ptr<SDL_Surface, FreeSurface>;

/// Whether SDL 1.2 can make a surface of this size, in pixels, that has any.
constexpr bool fitsSurface(int width, int height)
{
    return width > 0 && width < 16384 && height > 0 && height < 65536;
}

} // namespace zrk
