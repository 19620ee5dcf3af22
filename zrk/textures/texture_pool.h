#pragma once

#include "zrk/owned_string.h"
#include "zrk/textures/texture.h"

#include <cstdint>
#include <iosfwd>
#include <memory>

namespace zrk {

/// Every texture of the program, numbered from 0 in the order of the textures pool file.
class TexturePool {
public:
    /// What `load` answers.
    enum Code : std::int32_t {
        loaded = 0,
        cannotOpenFile = 1,
        cannotCloseFile = 2,
        readError = 3,
        unknownOption = 5,
        cannotConvert = 6,
        noFirstLine = -1,
        noTextures = -2, ///< The count is 0, negative, or no number.
        tooFewLines = -4,
        cannotLoadImage = -100, ///< The image's own result a hundredfold.
    };

    std::uint32_t count = 0;
    std::unique_ptr<Texture[]> textures;

    /// The pool file last loaded to its end.
    String fileName;

    /// Replaces the textures by those that the pool file `name` lists: `loaded`, or the `Code` of
    /// what went wrong. A load that fails at a texture line keeps the textures before it. `log` may
    /// be null. No memory is `Cexception`.
    [[nodiscard]] std::int32_t load(const char* name, std::ostream* log);

    /// Uploads every texture, number 0 first. An OpenGL context must be current.
    void uploadAll();

    /// Drops all textures and makes `newCount` empty ones. No memory is `Cexception`.
    void resize(std::uint32_t newCount);

private:
    static void report(std::int32_t code, const char* name, std::ostream* log);
};

} // namespace zrk
