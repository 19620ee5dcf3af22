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
    std::uint32_t count = 0;
    std::unique_ptr<Texture[]> textures;

    /// The pool file last loaded to its end.
    String fileName;

    /// Replaces the textures by those that the pool file `name` lists: 0, or a `PoolCode` of the
    /// source file, or -100 for an image that cannot be loaded. A load that fails at a texture line
    /// keeps the textures before it. `log` may be null. No memory is `Cexception`.
    [[nodiscard]] std::int32_t load(const char* name, std::ostream* log);

    /// Uploads every texture, number 0 first. An OpenGL context must be current.
    void uploadAll();

    /// Drops all textures and makes `newCount` empty ones.
    void resize(std::uint32_t newCount);

private:
    static void report(std::int32_t code, const char* name, std::ostream* log);
};

} // namespace zrk
