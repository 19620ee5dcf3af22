#include "zrk/shaders/texture_state.h"

#include "zrk/shaders/keywords.h"
#include "zrk/shaders/layer_text.h"
#include "zrk/shaders/parameter_reader.h"
#include "zrk/textures/texture_pool.h"

#include <utility>

namespace zrk {

namespace {

// In the order of the OpenGL calls.
constexpr std::pair<GLenum, GLenum TextureState::*> samplingParameters[] = {
    {GL_TEXTURE_MAG_FILTER, &TextureState::magFilter},
    {GL_TEXTURE_MIN_FILTER, &TextureState::minFilter},
    {GL_TEXTURE_WRAP_S, &TextureState::wrapS},
    {GL_TEXTURE_WRAP_T, &TextureState::wrapT},
};

} // namespace

ShaderResult readTextureState(LineTokens& line, std::int32_t& index, TextureState& state)
{
    return ParameterReader(line)
        .integer(index)
        .word(minFilterWords, state.minFilter)
        .word(magFilterWords, state.magFilter)
        .word(wrapWords, state.wrapS)
        .word(wrapWords, state.wrapT)
        .word(envModeWords, state.envMode)
        .numbers(state.envColor)
        .result();
}

void writeTextureWords(LayerText& text, std::int32_t index, const TextureState& state)
{
    text.integer(index)
        .word(minFilterWords, state.minFilter)
        .word(magFilterWords, state.magFilter)
        .word(wrapWords, state.wrapS)
        .word(wrapWords, state.wrapT)
        .word(envModeWords, state.envMode);
}

void sendTextureState(const TextureState& state)
{
    glBindTexture(GL_TEXTURE_2D, state.glName);
    for (const auto& [parameter, field] : samplingParameters)
        glTexParameteri(GL_TEXTURE_2D, parameter, static_cast<GLint>(state.*field));
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, static_cast<GLint>(state.envMode));
    glTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, state.envColor.data());
}

void readBackTextureState(TextureState& state)
{
    GLint value = 0;
    glBindTexture(GL_TEXTURE_2D, state.glName);
    for (const auto& [parameter, field] : samplingParameters) {
        glGetTexParameteriv(GL_TEXTURE_2D, parameter, &value);
        state.*field = static_cast<GLenum>(value);
    }
    glGetTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, &value);
    state.envMode = static_cast<GLenum>(value);
    glGetTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, state.envColor.data());
}

void resolveTextureState(TextureState& state, std::int32_t index, const TexturePool& pool)
{
    if (pool.count == 0)
        return;
    const bool known = index >= 0 && std::cmp_less(index, pool.count);
    state.glName = pool.textures[known ? static_cast<std::uint32_t>(index) : 0].glName;
}

} // namespace zrk
