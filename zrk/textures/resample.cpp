#include "zrk/textures/resample.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>

namespace zrk {

namespace {

template <typename Pixel>
Pixel* rowOf(const SDL_Surface& surface, std::uint32_t row)
{
    auto* const first = static_cast<unsigned char*>(surface.pixels);
    return reinterpret_cast<Pixel*>(first + std::size_t{row} * surface.pitch);
}

/// How far the source position advances per destination pixel, in 16.16 fixed point. Rounded down,
/// so the last position stays inside the source.
std::uint32_t stepBetween(int sourceSize, int destinationSize)
{
    return (static_cast<std::uint32_t>(sourceSize) << 16) /
           static_cast<std::uint32_t>(destinationSize);
}

template <typename Pixel, typename Recolour>
void sampleNearest(const SDL_Surface& source, const SDL_Surface& destination, Recolour recolour)
{
    const std::uint32_t stepX = stepBetween(source.w, destination.w);
    const std::uint32_t stepY = stepBetween(source.h, destination.h);
    const auto rows = static_cast<std::uint32_t>(destination.h);
    std::uint32_t sourceY = 0;
    for (std::uint32_t row = 0; row < rows; ++row, sourceY += stepY) {
        const Pixel* const from = rowOf<Pixel>(source, sourceY >> 16);
        Pixel* const to = rowOf<Pixel>(destination, row);
        std::uint32_t sourceX = 0;
        for (int column = 0; column < destination.w; ++column, sourceX += stepX)
            to[column] = recolour(from[sourceX >> 16]);
    }
}

// By hand: SDL_SetPalette does nothing unless SDL's video subsystem is running.
void copyPalette(const SDL_Palette& from, SDL_Palette& to)
{
    to.ncolors = std::min(from.ncolors, to.ncolors);
    std::copy_n(from.colors, to.ncolors, to.colors);
}

} // namespace

void resampleNearest(const SDL_Surface& source, SDL_Surface& destination)
{
    const SDL_PixelFormat& from = *source.format;
    const SDL_PixelFormat& to = *destination.format;
    if (from.BitsPerPixel == 8) {
        // Sampling colours would need a palette to look them up in; indices stay what they are.
        copyPalette(*from.palette, *to.palette);
        SDL_SetColorKey(&destination, source.flags & SDL_SRCCOLORKEY, from.colorkey);
        sampleNearest<std::uint8_t>(source, destination, [](std::uint8_t index) { return index; });
        return;
    }
    assert(from.BitsPerPixel == 32);
    sampleNearest<std::uint32_t>(source, destination, [&](std::uint32_t pixel) {
        std::uint8_t red = 0, green = 0, blue = 0;
        SDL_GetRGB(pixel, &from, &red, &green, &blue);
        return SDL_MapRGB(&to, red, green, blue);
    });
}

} // namespace zrk
