#include "zrk/shaders/texture_layer.h"

#include "zrk/allocation.h"
#include "zrk/owned_string.h"
#include "zrk/renderer.h"
#include "zrk/shaders/layer_text.h"
#include "zrk/shaders/shader.h"
#include "zrk/shaders/texture_units.h"

#include <utility>

namespace zrk {

void TextureLayer::apply()
{
    setTextureUnits(1);
    if (!prepared)
        sendTextureState(state); // even if the texture is bound: its parameters are not set yet
    else if (!isBound(0, state.glName))
        glBindTexture(GL_TEXTURE_2D, state.glName);
    noteBound(0, state.glName);
    prepared = true;
}

void TextureLayer::reapply()
{
    setTextureUnits(1);
    sendTextureState(state);
    prepared = true; // the cache of bound names belongs to `apply`
}

void TextureLayer::readBack()
{
    renderer.returnToFirstUnit();
    if (prepared)
        readBackTextureState(state);
}

void TextureLayer::toText(String& out) const
{
    describe(out, Decimals::four);
}

void TextureLayer::write(std::FILE* out) const
{
    String text;
    describe(text, Decimals::six);
    std::fprintf(out, "  %s", text.cString());
}

void TextureLayer::resolve(const TexturePool& pool)
{
    resolveTextureState(state, index, pool);
}

void TextureLayer::describe(String& out, Decimals decimals) const
{
    LayerText text(out, Keyword::texture, decimals);
    writeTextureWords(text, index, state);
    text.lastNumbers(state.envColor);
}

ShaderResult parseTextureLayer(Shader& shader, LineTokens& line)
{
    auto layer = newObject<TextureLayer>();
    const ShaderResult result = readTextureState(line, layer->index, layer->state);
    if (result == ShaderResult::ok)
        shader.addLayer(std::move(layer));
    return result;
}

} // namespace zrk
