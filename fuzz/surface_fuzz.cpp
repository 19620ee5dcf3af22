// A surface of any depth, palette and colour key, which is converted and shrunk.

#include "fuzz/harness.h"
#include "zrk/textures/resample.h"
#include "zrk/textures/rgba32_format.h"

#include <algorithm>

void tryInput(std::span<const std::uint8_t> input)
{
    constexpr std::size_t headerBytes = 8;
    if (input.size() < headerBytes)
        return;
    constexpr int depths[] = {1, 4, 8, 15, 16, 24, 32};
    const int width = 1 + input[0] * (input[1] % 4 + 1), height = 1 + input[2];
    zrk::OwnedSurface surface(
        SDL_CreateRGBSurface(0, width, height, depths[input[3] % std::size(depths)], 0, 0, 0, 0));
    if (SDL_Palette* const palette = surface->format->palette)
        palette->ncolors = std::min(palette->ncolors, 1 + input[4]);
    if (input[5] % 2 != 0)
        SDL_SetColorKey(surface.get(), SDL_SRCCOLORKEY, input[6]);
    const auto pixels = input.subspan(headerBytes);
    const auto bytes = static_cast<std::size_t>(surface->pitch * height);
    std::copy_n(pixels.begin(), std::min(bytes, pixels.size()),
                static_cast<std::uint8_t*>(surface->pixels));
    if (surface->format->BitsPerPixel != 8)
        surface = zrk::toRgba32(*surface);
    const SDL_PixelFormat& format = *surface->format;
    const zrk::OwnedSurface smaller(
        SDL_CreateRGBSurface(0, 1 + input[7] % width, 1 + input[1] % height, format.BitsPerPixel,
                             format.Rmask, format.Gmask, format.Bmask, format.Amask));
    zrk::resampleNearest(*surface, *smaller);
    (void)zrk::toRgba32(*smaller);
}
