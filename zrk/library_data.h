#pragma once

#include "zrk/shaders/shader_pool.h"
#include "zrk/textures/texture_pool.h"

#include <cstdint>
#include <iosfwd>

namespace zrk {

/// Everything that is loaded to draw with. There is one, `libraryData`.
class LibraryData {
public:
    TexturePool textures;
    ShaderPool shaders; ///< Destroyed before the textures that its layers name.

    /// Loads both pools; `fileName` is a text file of two lines, the textures pool file's name and
    /// the shaders pool file's. 0 is success, 1 a data file that cannot be opened, anything else
    /// the result of the pool that failed; the log lines go to `log`, which may be null.
    [[nodiscard]] std::int32_t loadData(const char* fileName, std::ostream* log);

    /// Makes the texture objects and tells the layers their names. Called once, after `loadData`
    /// has succeeded, with an OpenGL context current.
    void upload();
};

extern LibraryData libraryData;

} // namespace zrk
