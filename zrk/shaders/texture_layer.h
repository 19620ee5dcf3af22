#pragma once

#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/shader_result.h"
#include "zrk/shaders/texture_state.h"

namespace zrk {

class LineTokens;
enum class Decimals;
class Shader;

/// One texture on unit 0. Only the first `apply` sets the unit's environment; later calls leave the
/// environment that the unit has by then.
class TextureLayer : public ShaderLayer {
public:
    bool prepared = false; ///< `apply` or `reapply` has set the whole state once.
    TextureState state;

    void apply() override;
    void reapply() override;
    void readBack() override;
    void toText(String& out) const override;
    void write(std::FILE* out) const override;
    void resolve(const TexturePool& pool) override;
    LayerKind kind() const override { return LayerKind::texture; }

private:
    void describe(String& out, Decimals decimals) const;
};

/// Adds the layer described by the rest of `line`. A faulty line adds nothing.
[[nodiscard]] ShaderResult parseTextureLayer(Shader& shader, LineTokens& line);

} // namespace zrk
