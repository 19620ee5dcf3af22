#pragma once

#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/shader_result.h"
#include "zrk/shaders/texture_state.h"

#include <cstdint>
#include <memory>

namespace zrk {

class LineTokens;
class Shader;

/// What one unit shows: a texture's position in the `TexturePool`, and its state.
struct TextureStage {
    std::int32_t index = 0;
    TextureState state;
};

/// Several textures at once, stage i on unit i. With fewer units than stages, as without
/// multitexture, stage 0 is all that is applied.
class MultitextureLayer : public ShaderLayer {
public:
    bool prepared = false; ///< The whole state has been set once.
    std::unique_ptr<TextureStage[]> stages;
    std::uint32_t stageCount = 0;

    /// A layer of `count` new stages, 4 at most.
    explicit MultitextureLayer(std::uint32_t count);
    MultitextureLayer(const MultitextureLayer& other);

    /// Ends with unit 0 selected the first time, later with the lowest unit that needed a bind.
    void apply() override;

    /// Ends with the last stage's unit selected.
    void reapply() override;

    /// Reads every stage through whichever unit is selected.
    void readBack() override;

    void toText(String& out) const override;
    void write(std::FILE* out) const override;
    void resolve(const TexturePool& pool) override;
    LayerKind kind() const override { return LayerKind::multitexture; }

    /// Takes copies of `other`'s stages in place of its own.
    virtual void assign(const MultitextureLayer& other);

private:
    /// Enables the layer's units and returns how many stages they can show.
    std::uint32_t enableUnits() const;

    void describe(String& out, int decimals) const;
};

/// Adds the layer that the rest of `line` describes; a bad line adds nothing. More stages than 4
/// or less than none are an unknown parameter.
[[nodiscard]] ShaderResult parseMultitextureLayer(Shader& shader, LineTokens& line);

} // namespace zrk
