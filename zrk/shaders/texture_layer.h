#pragma once

#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/shader_result.h"
#include "zrk/shaders/texture_state.h"

namespace zrk {

class LineTokens;
class Shader;

/// One texture on unit 0. Its environment is set by the first `apply` only; later ones leave
/// whatever the unit has by then.
class TextureLayer : public ShaderLayer {
public:
    bool prepared = false; ///< The whole state has been set once.
    TextureState state;

    void apply() override;
    void reapply() override;
    void readBack() override;
    void toText(String& out) const override;
    void write(std::FILE* out) const override;
    void resolve(const TexturePool& pool) override;
    LayerKind kind() const override { return LayerKind::texture; }

private:
    void describe(String& out, int decimals) const;
};

/// Adds the layer that the rest of `line` describes; a bad line adds nothing.
[[nodiscard]] ShaderResult parseTextureLayer(Shader& shader, LineTokens& line);

} // namespace zrk
