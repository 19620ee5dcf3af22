#pragma once

#include "zrk/owned_string.h"
#include "zrk/textures/owned_surface.h"

#include <cstdint>
#include <iosfwd>

namespace zrk {

/// One entry of the textures pool: an image, the OpenGL texture object created from it, and the
/// options of its line in the pool file.
class Texture {
public:
    /// OpenGL texture name; 0 until `upload` has generated one.
    std::uint32_t glName = 0;

    /// Null until `load`, then kept for the whole run. `load` gives 8 bits per pixel (indices or
    /// intensities) or 32 in `rgba32Format`.
    OwnedSurface surface;

    /// The name given to the last successful `load`; empty before.
    String fileName;

    bool mipmap = false; ///< `upload` builds the full mipmap chain.
    bool mask = false;   ///< `upload` makes an 8-bit image GL_ALPHA instead of GL_LUMINANCE.
    bool grey = false;   ///< The pool keeps an 8-bit image's values as intensities.

    Texture() = default;
    Texture(const Texture&) = delete;
    Texture& operator=(const Texture&) = delete;

    /// Deletes the texture object and frees the surface. OpenGL ignores the deletion when no
    /// context is current any more, as at the end of the program.
    ~Texture();

    /// Loads the image file `name` (see `loadImage`), converts it to `rgba32Format` unless it has 8
    /// bits per pixel, and shrinks it to the `renderer`'s limits. Returns 0, or -1 on any failure.
    /// An image that cannot be loaded leaves the texture unchanged and writes one line to `log`,
    /// which may be null. A failed conversion leaves no surface, a failed shrink the large one.
    [[nodiscard]] std::int32_t load(const char* name, std::ostream* log);

    /// Creates the texture object from the surface, if there is one and it was not uploaded yet,
    /// and returns `glName`. An OpenGL context must be current. A pending OpenGL error, whichever
    /// call caused it, is reported on standard error and ends the process with status -1.
    std::uint32_t upload();

    /// Exchanges everything with `other`.
    void swap(Texture& other) noexcept;

    /// Frees the surface, if there is one; `glName` stays.
    void freeSurface();

private:
    /// Shrinks the surface to the `renderer`'s limits, width and height independently. Returns
    /// false, with the surface unchanged, if SDL cannot create the smaller one.
    bool limitSize();

    /// Fills `destination` with the held surface's pixels by `resampleNearest`.
    void resample(SDL_Surface& destination) const;
};

} // namespace zrk
