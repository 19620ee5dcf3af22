#pragma once

#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/shader_result.h"
#include "zrk/shaders/texture_state.h"

#include <cstdint>
#include <memory>

namespace zrk {

class LineTokens;
enum class Decimals;
class Shader;

/// One texture unit's part: the texture's position in the `TexturePool`, and its state.
struct TextureStage {
    std::int32_t index = 0;
    TextureState state;
};

/// Several textures at once, stage i on unit i. Only units 0 and 1 are enabled: later stages are
/// bound but not shown, and with a single stage unit 1 shows what was bound there last. If the
/// driver has fewer units than the layer has stages, only stage 0 is applied, and shown.
class MultitextureLayer : public ShaderLayer {
public:
    bool prepared = false; ///< `apply` or `reapply` has set the whole state once.
    std::unique_ptr<TextureStage[]> stages;
    std::uint32_t stageCount = 0;

    /// A layer of `count` default stages, at most `maxStages`.
    explicit MultitextureLayer(std::uint32_t count);
    MultitextureLayer(const MultitextureLayer& other);

    /// The first call leaves unit 0 selected, later calls the lowest unit that needed a bind.
    void apply() override;

    /// Leaves the last stage's unit selected.
    void reapply() override;

    /// Reads every stage through the unit that is selected, without selecting another.
    void readBack() override;

    void toText(String& out) const override;
    void write(std::FILE* out) const override;
    void resolve(const TexturePool& pool) override;
    LayerKind kind() const override { return LayerKind::multitexture; }

    /// Copies `other`'s stages and `prepared`. Throws `Cexception` without memory and leaves the
    /// layer unchanged.
    virtual void assign(const MultitextureLayer& other);

private:
    /// Enables units 0 and 1, or 0 alone where stages are left out, and returns how many stages can
    /// be applied.
    std::uint32_t enableUnits() const;

    void describe(String& out, Decimals decimals) const;
};

/// Adds the layer described by the rest of `line`. A faulty line adds nothing. A stage count below
/// 0 or above `maxStages` is `unknownParameter`.
[[nodiscard]] ShaderResult parseMultitextureLayer(Shader& shader, LineTokens& line);

} // namespace zrk
