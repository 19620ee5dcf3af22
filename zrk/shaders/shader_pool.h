#pragma once

#include "zrk/owned_string.h"
#include "zrk/shaders/shader.h"
#include "zrk/shaders/shader_result.h"

#include <cstdint>
#include <cstdio>
#include <memory>

namespace zrk {

class TexturePool;

/// All shaders, numbered from 0 in the order of their blocks in the shaders pool file.
class ShaderPool {
public:
    std::uint32_t count = 0;
    std::unique_ptr<Shader[]> shaders; ///< Entries from `count` on are spare capacity.

    /// The file of the last successful `load`; empty before.
    String fileName;

    ShaderPool() = default;
    ShaderPool(const ShaderPool&) = delete;
    ShaderPool& operator=(const ShaderPool&) = delete;

    /// Appends the shaders of the file `name` and returns 0 or the error that stopped the load. The
    /// shaders read before an error stay, including the one that failed. A warning keeps its shader
    /// and reading goes on. Messages go to `log`, which may be null. Invalidates pointers to
    /// shaders. Throws `Cexception` without memory.
    [[nodiscard]] ShaderResult load(const char* name, std::FILE* log);

    /// Lets every layer look up its OpenGL texture names. `textures` must be uploaded.
    void resolve(const TexturePool& textures);

    Shader& operator[](std::uint32_t position) { return shaders[position]; }
    const Shader& operator[](std::uint32_t position) const { return shaders[position]; }

private:
    ShaderResult readShaders(std::FILE* file, std::FILE* log);

    /// Appends an empty shader.
    Shader& grow();

    std::uint32_t capacity = 0;
};

} // namespace zrk
