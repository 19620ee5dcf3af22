#include "zrk/shaders/shader_parser.h"

#include "tests/support/gl_recorder.h"
#include "tests/zrk/shaders/sample_pool.h"
#include "zrk/renderer.h"
#include "zrk/shaders/blend_layer.h"
#include "zrk/shaders/color_layer.h"
#include "zrk/shaders/multitexture_layer.h"
#include "zrk/shaders/texture_layer.h"
#include "zrk/shaders/texture_units.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <initializer_list>
#include <set>

using namespace zrk;

TEST(ShaderParser, GivesEverySampleItsResultItsMessagesAndItsShaders)
{
    for (const auto& [text, expected] : pairsIn("samples.txt")) {
        const LoadedPool loaded(text);
        const std::string code = std::to_string(static_cast<int>(loaded.result));
        EXPECT_EQ(code + "\n" + loaded.log + loaded.summary(), expected) << text;
    }
}

TEST(ShaderParser, ReportsAStreamThatFailsAndOneWithNothingLeft)
{
    std::string rest = "failing\n{\n blend: one, one\n";
    const auto read = [](void* text, char* data, std::size_t size) -> ssize_t {
        std::string& left = *static_cast<std::string*>(text);
        const std::size_t taken = left.copy(data, size);
        left.clear();
        errno = EIO;
        return taken == 0 ? -1 : static_cast<ssize_t>(taken);
    };
    std::FILE* file = fopencookie(&rest, "r", {read, nullptr, nullptr, nullptr});
    Shader shader;
    EXPECT_EQ(parseShader(shader, file), ShaderResult::readError);
    EXPECT_EQ(parseShader(shader, file), ShaderResult::nothingToLoad);
    EXPECT_STREQ(messageFor(ShaderResult::nothingToLoad), "warning: nothing to load");
    std::fclose(file);
}

TEST(ShaderParser, TakesEveryWordInItsPlaceAndNoOtherAndReadsBackWhatItWrites)
{
    renderer.textureUnits = maxStages; // enough for every stage to be sent
    const std::vector<AcceptedWord> accepted = acceptedWords();
    std::set<std::string> lines;
    std::set<std::string> words{"bool", "true", "texture", "multitexture", "color", "Linear", "<"};
    for (const AcceptedWord& entry : accepted) {
        lines.insert(entry.line());
        words.insert(entry.word);
        const LoadedPool loaded = poolOf(entry.line());
        ASSERT_EQ(loaded.result, ShaderResult::ok) << entry.line();
        ShaderLayer& layer = *loaded.pool[0].layers().front();
        layer.reapply();
        EXPECT_THAT(gl_recorder::takeCalls(), testing::Contains(entry.call)) << entry.line();
        EXPECT_EQ(poolOf(textOf(layer)).summary(), loaded.summary());
        EXPECT_EQ(poolOf(printed(layer)).summary(), loaded.summary());
    }
    for (const AcceptedWord& entry : accepted)
        for (const std::string& word : words)
            if (const std::string line = entry.lineWith(word); !lines.contains(line)) {
                EXPECT_EQ(poolOf(line).result, ShaderResult::unknownParameter) << line;
            }
}

TEST(ShaderLayer, IsPrintedToTheLetterLessWhatHasNoWord)
{
    MultitextureLayer stages(2);
    stages.stages[0].state.envMode = stages.stages[1].state.minFilter = GL_ADD;
    BlendLayer blend;
    blend.dstFactor = GL_DST_COLOR;
    TextureLayer texture;
    ColorLayer color;
    std::string texts;
    for (const ShaderLayer* layer :
         std::initializer_list<ShaderLayer*>{&texture, &stages, &blend, &color})
        texts += printed(*layer) + "|\n" + textOf(*layer) + "|\n";
    EXPECT_EQ(texts, pairsIn("texts.txt").front().second);
}

TEST(ShaderLayer, SharesNothingWithItsCopy)
{
    MultitextureLayer stages(2), assigned(1);
    stages.index = 5;
    stages.stages[1].state.glName = 8;
    const MultitextureLayer copy(stages);
    assigned.assign(stages);
    stages.stages[1].state.glName = 9;
    EXPECT_EQ(copy.stages[1].state.glName, 8u);
    EXPECT_EQ(copy.index, 0);
    EXPECT_EQ(assigned.stages[1].state.glName, 8u);
    ColorLayer red, alsoRed;
    red.values()[0] = 1.0f;
    alsoRed.assign(red);
    red.values()[0] = 0.5f;
    EXPECT_EQ(alsoRed.values()[0], 1.0f);
}
