#include "zrk/shaders/multitexture_layer.h"

#include "zrk/allocation.h"
#include "zrk/owned_string.h"
#include "zrk/renderer.h"
#include "zrk/shaders/layer_text.h"
#include "zrk/shaders/parameter_reader.h"
#include "zrk/shaders/shader.h"
#include "zrk/shaders/texture_units.h"

#include <algorithm>
#include <span>

namespace zrk {

MultitextureLayer::MultitextureLayer(std::uint32_t count)
    : stages(newArray<TextureStage>(count)),
      stageCount(count)
{
}

MultitextureLayer::MultitextureLayer(const MultitextureLayer& other) : ShaderLayer(other)
{
    MultitextureLayer::assign(other);
}

void MultitextureLayer::apply()
{
    // Downward, so that the first call leaves unit 0 selected, as texture layers expect.
    for (std::uint32_t unit = enableUnits(); unit-- > 0;) {
        const TextureState& state = stages[unit].state;
        if (prepared && isBound(unit, state.glName))
            continue;
        renderer.selectUnit(unit);
        if (prepared)
            glBindTexture(GL_TEXTURE_2D, state.glName);
        else
            sendTextureState(state);
        noteBound(unit, state.glName);
    }
    prepared = true;
    renderer.noteUnitsSwitched();
}

void MultitextureLayer::reapply()
{
    const std::uint32_t shown = enableUnits();
    for (std::uint32_t unit = 0; unit < shown; ++unit) {
        renderer.selectUnit(unit);
        sendTextureState(stages[unit].state);
    }
    prepared = true; // the cache of bound names belongs to `apply`
    renderer.noteUnitsSwitched();
}

void MultitextureLayer::readBack()
{
    if (!prepared)
        return;
    for (TextureStage& stage : std::span(stages.get(), stageCount))
        readBackTextureState(stage.state);
}

void MultitextureLayer::toText(String& out) const
{
    describe(out, Decimals::four);
}

void MultitextureLayer::write(std::FILE* out) const
{
    String text;
    describe(text, Decimals::six);
    std::fprintf(out, "  %s", text.cString());
}

void MultitextureLayer::resolve(const TexturePool& pool)
{
    for (TextureStage& stage : std::span(stages.get(), stageCount))
        resolveTextureState(stage.state, stage.index, pool);
}

void MultitextureLayer::assign(const MultitextureLayer& other)
{
    if (this == &other)
        return;
    stages = newArray<TextureStage>(other.stageCount);
    std::copy_n(other.stages.get(), other.stageCount, stages.get());
    stageCount = other.stageCount;
    prepared = other.prepared;
}

std::uint32_t MultitextureLayer::enableUnits() const
{
    const std::uint32_t shown = shownStages(stageCount);
    // With stages left out, unit 1 would show whatever texture was bound there before.
    const bool both = shown == stageCount || !renderer.multitextureAvailable;
    setTextureUnits(both ? 3 : 1);
    return shown;
}

void MultitextureLayer::describe(String& out, Decimals decimals) const
{
    LayerText text(out, Keyword::multitexture, decimals);
    text.integer(static_cast<std::int32_t>(stageCount));
    for (std::uint32_t unit = 0; unit < stageCount; ++unit) {
        const auto& [stageIndex, state] = stages[unit];
        writeTextureWords(text, stageIndex, state);
        if (unit + 1 < stageCount)
            text.numbers(state.envColor);
        else
            text.lastNumbers(state.envColor);
    }
}

ShaderResult parseMultitextureLayer(Shader& shader, LineTokens& line)
{
    std::int32_t count = 0;
    const ShaderResult counted = ParameterReader(line).integer(count).result();
    if (counted != ShaderResult::ok)
        return counted;
    if (count < 0 || count > static_cast<std::int32_t>(maxStages))
        return ShaderResult::unknownParameter;

    // The shader gets a copy once the whole line is read: the registry cannot give a layer back.
    MultitextureLayer working(static_cast<std::uint32_t>(count));
    for (TextureStage& stage : std::span(working.stages.get(), working.stageCount)) {
        const ShaderResult result = readTextureState(line, stage.index, stage.state);
        if (result != ShaderResult::ok)
            return result;
    }
    shader.addLayer(newObject<MultitextureLayer>(working));
    return ShaderResult::ok;
}

} // namespace zrk
