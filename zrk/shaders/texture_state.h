#pragma once

#include "zrk/gl.h"
#include "zrk/shaders/shader_result.h"

#include <array>
#include <cstdint>

namespace zrk {

class LayerText;
class LineTokens;
class TexturePool;

/// One texture as a unit shows it: the object, its sampling, and the unit's environment. Starts
/// as OpenGL does.
struct TextureState {
    GLuint glName = 0;
    GLenum magFilter = GL_LINEAR;
    GLenum minFilter = GL_NEAREST_MIPMAP_LINEAR;
    GLenum wrapS = GL_REPEAT;
    GLenum wrapT = GL_REPEAT;
    GLenum envMode = GL_MODULATE;
    std::array<GLfloat, 4> envColor{};
};

/// A texture's position in the `TexturePool`, then the state less its name, in the order of a
/// layer's line: the next eleven parameters of `line`.
[[nodiscard]] ShaderResult readTextureState(LineTokens& line, std::int32_t& index,
                                            TextureState& state);

/// The parameters that `readTextureState` reads, but for the colour, which may be the line's last.
void writeTextureWords(LayerText& text, std::int32_t index, const TextureState& state);

/// Binds the texture to the selected unit and sets everything else. What is sampled belongs to
/// the texture and lasts; the environment belongs to the unit.
void sendTextureState(const TextureState& state);

/// Binds the texture to the selected unit and fills everything but the name from OpenGL. The
/// cache of bound names does not learn of it.
void readBackTextureState(TextureState& state);

/// Takes the name of the texture at `index`, or of the first where there is none; an empty pool
/// changes nothing.
void resolveTextureState(TextureState& state, std::int32_t index, const TexturePool& pool);

} // namespace zrk
