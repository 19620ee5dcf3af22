#include "zrk/textures/rgba32_format.h"

#include <array>
#include <utility>

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

namespace {

// SDL maps as many colours as the palette says it has, but an image may hold any index. The array
// always has 256 entries; those that the image does not define become black.
void completePalette(SDL_Surface& surface)
{
    std::array<SDL_Color, 256> black{};
    const int defined =
        std::exchange(surface.format->palette->ncolors, static_cast<int>(black.size()));
    SDL_SetColors(&surface, black.data(), defined, static_cast<int>(black.size()) - defined);
}

} // namespace

OwnedSurface toRgba32(SDL_Surface& surface)
{
    if (surface.format->BitsPerPixel == 8 && surface.format->palette != nullptr)
        completePalette(surface);
    SDL_PixelFormat format = rgba32Format; // SDL's parameter is not const
    return OwnedSurface(SDL_ConvertSurface(&surface, &format, 0));
}

} // namespace zrk
