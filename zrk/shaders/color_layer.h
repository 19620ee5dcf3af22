#pragma once

#include "zrk/gl.h"
#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/shader_result.h"

#include <memory>
#include <span>

namespace zrk {

class LineTokens;
class Shader;

/// OpenGL's current colour, which tints what is drawn. `Shader::apply` resets it to white for the
/// next shader without a color layer.
class ColorLayer : public ShaderLayer {
public:
    /// Red, green, blue and alpha.
    std::unique_ptr<GLfloat[]> rgba;

    ColorLayer();
    ColorLayer(const ColorLayer& other);

    void apply() override;
    void reapply() override;
    void readBack() override;
    void toText(String& out) const override;
    void write(std::FILE* out) const override;
    void resolve(const TexturePool& pool) override;
    LayerKind kind() const override { return LayerKind::color; }

    /// Copies `other`'s values.
    virtual void assign(const ColorLayer& other);

    std::span<GLfloat, 4> values() const { return std::span<GLfloat, 4>(rgba.get(), 4); }
};

/// Adds the layer described by the rest of `line`. A faulty line adds nothing.
[[nodiscard]] ShaderResult parseColorLayer(Shader& shader, LineTokens& line);

} // namespace zrk
