#include "zrk/textures/rgba32_format.h"

namespace zrk {

const SDL_PixelFormat rgba32Format = {
    .palette = nullptr,
    .BitsPerPixel = 32,
    .BytesPerPixel = 4,
    .Rloss = 0,
    .Gloss = 0,
    .Bloss = 0,
    .Aloss = 0,
    .Rshift = 0,
    .Gshift = 8,
    .Bshift = 16,
    .Ashift = 24,
    .Rmask = 0x000000FF,
    .Gmask = 0x0000FF00,
    .Bmask = 0x00FF0000,
    .Amask = 0xFF000000,
    .colorkey = 0,
    .alpha = 0,
};

OwnedSurface toRgba32(SDL_Surface& surface)
{
    SDL_PixelFormat format = rgba32Format; // SDL's parameter is not const
    return OwnedSurface(SDL_ConvertSurface(&surface, &format, 0));
}

} // namespace zrk
