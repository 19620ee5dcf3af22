#pragma once

#include "zrk/owned_string.h"
#include "zrk/shaders/shader.h"
#include "zrk/shaders/shader_result.h"

#include <cstdint>
#include <cstdio>
#include <memory>

namespace zrk {

class TexturePool;

/// Every shader of the program, numbered from 0 in the order of the shaders pool file.
class ShaderPool {
public:
    std::uint32_t count = 0;
    std::unique_ptr<Shader[]> shaders; ///< Those from `count` on are new and not used yet.

    /// The pool file of the last load that succeeded.
    String fileName;

    ShaderPool() = default;
    ShaderPool(const ShaderPool&) = delete;
    ShaderPool& operator=(const ShaderPool&) = delete;

    /// Adds the shaders of the file `name`. After an error the shaders read so far stay, the one
    /// that failed included; a warning keeps its shader and reading goes on. A stream that fails
    /// between two shaders is a read error too. `log` may be null. Moves the shaders in memory.
    [[nodiscard]] ShaderResult load(const char* name, std::FILE* log);

    /// Lets every layer take its OpenGL texture names, once all of `textures` are uploaded.
    void resolve(const TexturePool& textures);

    Shader& operator[](std::uint32_t position) { return shaders[position]; }
    const Shader& operator[](std::uint32_t position) const { return shaders[position]; }

private:
    ShaderResult readShaders(std::FILE* file, std::FILE* log);

    /// A new empty shader at the end.
    Shader& grow();

    std::uint32_t capacity = 0;
};

} // namespace zrk
