#pragma once

#include "zrk/owned_string.h"

#include <SDL_video.h>

#include <cstdint>
#include <iosfwd>
#include <memory>

namespace zrk {

struct FreeSurface {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};

/// An SDL surface and the duty to free it.
using OwnedSurface = std::unique_ptr<SDL_Surface, FreeSurface>;

/// One image of the textures pool: its pixels, the OpenGL texture object made of them, and what
/// the pool file asks for. The pixels stay in memory for the whole run.
class Texture {
public:
    /// OpenGL texture name; 0 until `upload` has made one.
    std::uint32_t glName = 0;

    /// Null until `load`; then 8 bits a pixel (intensities), or 32 in `rgba32Format`.
    OwnedSurface surface;

    /// As the pool file gives it; empty until an image is loaded.
    String fileName;

    bool mipmap = false; ///< Upload with the full mipmap chain.
    bool mask = false;   ///< An 8-bit image becomes an alpha-only texture, not a luminance one.
    bool grey = false;   ///< An 8-bit image stays 8-bit intensities.

    Texture() = default;
    Texture(const Texture&) = delete;
    Texture& operator=(const Texture&) = delete;

    /// Deletes the texture object, also when its context is gone, which OpenGL ignores.
    ~Texture();

    /// Decodes the image file `name` (null is no file), converts anything but 8-bit images to
    /// `rgba32Format`, and shrinks what is larger than the `renderer` allows. 0, or -1 on any
    /// failure. A file that cannot be decoded, or holds no pixels, or more than SDL does (from
    /// 16384 columns or 65536 rows), leaves the texture as it was and is one line on `log` where
    /// there is one. Without memory for the conversion there is no surface afterwards, without
    /// memory to shrink it the large one.
    [[nodiscard]] std::int32_t load(const char* name, std::ostream* log);

    /// Makes the texture object of the pixels held, once; returns `glName`. An OpenGL context
    /// must be current. Any OpenGL error that is pending by then, whoever caused it, is reported
    /// on standard error and ends the process with status -1.
    std::uint32_t upload();

    void freeSurface();

private:
    /// Shrinks the surface to what the `renderer` allows, width and height each by itself. False,
    /// with the surface as it was, when SDL makes no surface for the result.
    bool limitSize();

    /// Fills `destination`, which is no larger than the surface held and has its depth, with the
    /// nearest pixels of it: its palette, colour key and indices, or its colours without their
    /// alpha.
    void resample(SDL_Surface& destination) const;
};

} // namespace zrk
