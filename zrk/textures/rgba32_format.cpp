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
    // SDL maps as many colours as the palette says it has, but an image may hold any index. The
    // array always has 256 entries; those that the image does not define are black.
    if (surface.format->BitsPerPixel == 8 && surface.format->palette != nullptr)
        surface.format->palette->ncolors = 256;
    SDL_PixelFormat format = rgba32Format; // SDL's parameter is not const
    return OwnedSurface(SDL_ConvertSurface(&surface, &format, 0));
}

} // namespace zrk
