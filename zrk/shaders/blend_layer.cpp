#include "zrk/shaders/blend_layer.h"

#include "zrk/allocation.h"
#include "zrk/owned_string.h"
#include "zrk/shaders/layer_text.h"
#include "zrk/shaders/parameter_reader.h"
#include "zrk/shaders/shader.h"

#include <utility>

namespace zrk {

void BlendLayer::apply()
{
    glBlendFunc(srcFactor, dstFactor);
}

void BlendLayer::reapply()
{
    apply();
}

void BlendLayer::readBack()
{
    GLint value = 0;
    glGetIntegerv(GL_BLEND_SRC, &value);
    srcFactor = static_cast<GLenum>(value);
    glGetIntegerv(GL_BLEND_DST, &value);
    dstFactor = static_cast<GLenum>(value);
}

void BlendLayer::toText(String& out) const
{
    LayerText(out, Keyword::blend)
        .word(srcFactorWords, srcFactor)
        .lastWord(dstFactorWords, dstFactor);
}

void BlendLayer::write(std::FILE* out) const
{
    String text;
    toText(text);
    std::fprintf(out, "  %s", text.cString());
}

void BlendLayer::resolve(const TexturePool&) {}

ShaderResult parseBlendLayer(Shader& shader, LineTokens& line)
{
    auto layer = newObject<BlendLayer>();
    const ShaderResult result = ParameterReader(line)
                                    .word(srcFactorWords, layer->srcFactor)
                                    .word(dstFactorWords, layer->dstFactor)
                                    .result();
    if (result == ShaderResult::ok)
        shader.addLayer(std::move(layer));
    return result;
}

} // namespace zrk
