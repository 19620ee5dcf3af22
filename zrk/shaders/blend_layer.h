#pragma once

#include "zrk/gl.h"
#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/shader_result.h"

namespace zrk {

class LineTokens;
class Shader;

/// The blend function: how a fragment's colour and the picture's are combined. `Shader::apply`
/// enables and disables blending itself.
class BlendLayer : public ShaderLayer {
public:
    GLenum srcFactor = GL_ONE;
    GLenum dstFactor = GL_ZERO;

    void apply() override;
    void reapply() override;
    void readBack() override;
    void toText(String& out) const override;
    void write(std::FILE* out) const override;
    void resolve(const TexturePool& pool) override;
    LayerKind kind() const override { return LayerKind::blend; }
};

/// Adds the layer described by the rest of `line`. A faulty line adds nothing.
[[nodiscard]] ShaderResult parseBlendLayer(Shader& shader, LineTokens& line);

} // namespace zrk
