#pragma once

#include "zrk/gl.h"
#include "zrk/shaders/shader_result.h"

#include <array>
#include <cstdint>

namespace zrk {

class LayerText;
class LineTokens;
class TexturePool;

/// A texture on a unit: the texture object, its filters and wrap modes, and the unit's texture
/// environment. The defaults are OpenGL's initial values.
struct TextureState {
    GLuint glName = 0;
    GLenum magFilter = GL_LINEAR;
    GLenum minFilter = GL_NEAREST_MIPMAP_LINEAR;
    GLenum wrapS = GL_REPEAT;
    GLenum wrapT = GL_REPEAT;
    GLenum envMode = GL_MODULATE;
    std::array<GLfloat, 4> envColor{};
};

/// Reads the next ten parameters of `line`: the texture's position in the `TexturePool`, two
/// filters, two wrap modes, the environment mode, and the four numbers of the environment colour.
[[nodiscard]] ShaderResult readTextureState(LineTokens& line, std::int32_t& index,
                                            TextureState& state);

/// Writes the same parameters except the colour, which may be the last of the line.
void writeTextureWords(LayerText& text, std::int32_t index, const TextureState& state);

/// Binds the texture to the selected unit and sets the rest of the state. Filters and wrap modes
/// belong to the texture object, the environment to the unit.
void sendTextureState(const TextureState& state);

/// Binds the texture to the selected unit and reads everything but the name from OpenGL. Does not
/// update the cache of bound names.
void readBackTextureState(TextureState& state);

/// Sets `glName` to that of the texture at `index`, or of the first texture if `index` is out of
/// range. An empty pool changes nothing.
void resolveTextureState(TextureState& state, std::int32_t index, const TexturePool& pool);

} // namespace zrk
