#pragma once

#include "zrk/shaders/shader_pool.h"
#include "zrk/textures/texture_pool.h"

#include <cstdint>
#include <iosfwd>

namespace zrk {

/// All loaded rendering data. There is one instance, `libraryData`.
class LibraryData {
public:
    TexturePool textures;
    ShaderPool shaders; ///< Destroyed first.

    /// Loads both pools from the data file, a text file of two lines: the name of the textures pool
    /// file and the name of the shaders pool file. Returns 0, or 1 if the data file cannot be
    /// opened, or the non-zero result of the pool that failed. Messages go to `log`, which may be
    /// null.
    [[nodiscard]] std::int32_t loadData(const char* fileName, std::ostream* log);

    /// Creates the texture objects, then lets the layers look up their names. Call it once, after a
    /// successful `loadData`, with an OpenGL context current. A pending OpenGL error ends the
    /// process, as `Texture::upload` says.
    void upload();
};

extern LibraryData libraryData;

} // namespace zrk
