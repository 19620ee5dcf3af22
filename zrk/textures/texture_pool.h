#pragma once

#include "zrk/owned_string.h"
#include "zrk/textures/texture.h"

#include <cstdint>
#include <iosfwd>
#include <memory>

namespace zrk {

/// All textures, numbered from 0 in the order of their lines in the textures pool file.
class TexturePool {
public:
    /// Results of `load`.
    enum Code : std::int32_t {
        loaded = 0,
        cannotOpenFile = 1,
        cannotCloseFile = 2,
        readError = 3,
        unknownOption = 5,
        cannotConvert = 6,
        noFirstLine = -1,
        noTextures = -2, ///< The count is 0, negative, or not a number.
        tooFewLines = -4,
        cannotLoadImage = -100, ///< The result of `Texture::load` times 100.
    };

    std::uint32_t count = 0;
    std::unique_ptr<Texture[]> textures;

    /// The file of the last successful `load`; empty before.
    String fileName;

    /// Replaces the textures by those listed in the pool file `name`. Returns `loaded` or the
    /// `Code` of the first failure; the textures loaded before it stay. Messages go to `log`, which
    /// may be null. Throws `Cexception` without memory.
    [[nodiscard]] std::int32_t load(const char* name, std::ostream* log);

    /// Uploads every texture, number 0 first. An OpenGL context must be current. A pending OpenGL
    /// error ends the process, as `Texture::upload` says.
    void uploadAll();

    /// Replaces all textures by `newCount` empty ones. Throws `Cexception` without memory; the pool
    /// is empty then.
    void resize(std::uint32_t newCount);

    /// Doubles the pool, to at most `mostTextures`, by empty textures behind those it has; it is
    /// not empty. Throws `Cexception` without memory and leaves the pool unchanged.
    void grow(std::uint32_t mostTextures);

private:
    static void report(std::int32_t code, const char* name, std::ostream* log);
};

} // namespace zrk
