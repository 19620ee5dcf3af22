#pragma once

#include <SDL_video.h>

#include <memory>

namespace zrk {

struct FreeSurface {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};

/// Owns an SDL surface.
using OwnedSurface = std::unique_ptr<SDL_Surface, FreeSurface>;

} // namespace zrk
