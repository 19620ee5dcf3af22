#include "zrk/shaders/shader_pool.h"

#include "tests/zrk/shaders/sample_pool.h"

#include <gtest/gtest.h>

#include <random>

using namespace zrk;
using namespace std::string_literals;
using enum ShaderResult;

namespace {

const std::string greatest = "340282346638528859811704183484516925440.000000"; // of type float

struct PoolFile {
    std::string name, text;
    ShaderResult result;
    std::string log, shaders;
    const char* fileName = "pool";
};

/// A file of two shaders with a faulty line in the first, where the load stops.
PoolFile faultyLine(const std::string& name, const std::string& line, ShaderResult result)
{
    return {name, "sample\n{\nblend: one, zero\n" + line + "\n}\nunread\n{", result,
            result == unknownParameter ? "error: unknown parameter"
                                       : "error: incorrect number of parameters",
            "sample b\n{ blend: one, zero\n}\n"};
}

const std::string state = ", linear, linear, repeat, repeat, decal";
const PoolFile poolFiles[] = {
    {"NothingButOtherCharacters", "\n 12, {34} ;-)\n", ok, "ok, 0 texture loaded", ""},
    {"NameWithoutBlock", "word\n", missingOpeningBrace, "error: missing '{'", "word \n{}\n"},
    {"FourBlocks",
     R"(# 4 @[`{
Zone	two one
(shown first)
{ texture: 2, nearest, linear, clamp, repeat, decal, <1, 0, 0, 1>

  // no layer: blend: one, one
  blend: src_alpha, one_minus_src_alpha, and so on
   }: texture: 7
empty
{
}
Amber{}: {
color: 0 0 0 0
}
 2.	{
multitexture 1 0 linear linear repeat clamp_to_edge blend .5 .5 .5 1e0
	texture: 0
color: 1,.5>x<1> }
multitexture: 0
}
z
{
blend,one,one
})",
     ok, "warning: empty shader\nok, 4 textures loaded",
     "Zone\ttwo bt\n{ texture: 2, nearest, linear, clamp, repeat, decal, <1.0000, 0.0000, "
     "0.0000, "
     "1.0000>\n blend: src_alpha, one_minus_src_alpha\n}\nempty \n{}\n"
     "Amber{}: tc\n{ multitexture: 1, 0, linear, linear, repeat, clamp_to_edge, blend, "
     "<0.5000, "
     "0.5000, 0.5000, 1.0000>\n color: <1.000000, 0.500000, 0.000000, 1.000000>\n"
     " multitexture: 0, \n}\nz b\n{ blend: one, one\n}\n"},
    {"NameWithoutBlockThatCannotBeClosed", "word\n", cannotCloseFile,
     "error: missing '{'\nerror: cannot close file", "word \n{}\n", "unclosable"},
    {"ReadErrorInABlock", "a\n{\n", readError, "error: read error", "a \n{}\n", "unreadable"},
    {"ReadErrorInAName", "a", readError, "warning: nothing to load\nerror: read error", " \n{}\n",
     "unreadable"},
    {"BraceInTheNameOfAnUnfinishedBlock", "a}b\n{\n", ok, "ok, 1 texture loaded", "a}b \n{}\n"},
    {"BlankLineAtTheEnd", "a}b\n{  \nblend: one, one\n ,\n", missingClosingBrace,
     "error: missing '}'", "a}b b\n{ blend: one, one\n}\n"},
    {"NumbersOutOfRange",
     "a\n{\ncolor: 1e999 -1e39 nan 0x.8p1\ntexture: 99999999999 linear linear repeat repeat "
     "decal 1 2 3 4\n}\n",
     ok, "ok, 1 texture loaded",
     "a tc\n{ color: <" + greatest + ", -" + greatest +
         ", 0.000000, 1.000000>\n texture: 2147483647, linear, linear, repeat, repeat, decal, "
         "<1.0000, 2.0000, 3.0000, 4.0000>\n}\n"},
    {"LongestLine", "a\n{\nblend:" + std::string(16369, ' ') + "one, one\n}", ok,
     "ok, 1 texture loaded", "a b\n{ blend: one, one\n}\n"},
    // A line's first 16383 characters are one, the rest is another.
    faultyLine("LongerLine", "blend:" + std::string(16370, ' ') + "one, one", unknownParameter),
    faultyLine("MuchLongerLine", "blend:" + std::string(40000, ' ') + "one, one",
               wrongParameterCount),
    faultyLine("ColonBehindASpace", "texture : 0" + state + ", <0, 0, 0, 0>", unknownParameter),
    faultyLine("FourStages", "multitexture: 4", wrongParameterCount),
    faultyLine("FiveStages", "multitexture: 5", unknownParameter),
    faultyLine("NegativeStages", "multitexture: -1", unknownParameter),
    faultyLine("MissingColor", "texture: 0" + state, wrongParameterCount),
    faultyLine("MissingStage", "multitexture: 2, 0" + state + ", <0, 0, 0, 0>",
               wrongParameterCount),
    faultyLine("NulInALine", "blend: one\0, one"s, wrongParameterCount),
    faultyLine("MissingNumber", "color: <1, 1, 1>", wrongParameterCount),
    {"Directory", "", cannotOpenFile, "error: cannot open file", "", "/"},
};

class ShaderPoolFile : public testing::TestWithParam<PoolFile> {};

INSTANTIATE_TEST_SUITE_P(, ShaderPoolFile, testing::ValuesIn(poolFiles),
                         [](const auto& file) { return file.param.name; });

} // namespace

TEST_P(ShaderPoolFile, GivesItsResultItsMessagesAndItsShaders)
{
    const auto& [caseName, text, result, log, shaders, fileName] = GetParam();
    const LoadedPool loaded(text, fileName);
    EXPECT_EQ(loaded.result, result);
    EXPECT_EQ(loaded.log, "Loading "s + fileName + "... " + log + "\n");
    EXPECT_EQ(loaded.summary(), shaders);
    EXPECT_STREQ(loaded.pool.fileName.cString(), result == ok ? fileName : "");
}

TEST(ShaderPool, SurvivesAFileThatEndsAnywhereAndRubbish)
{
    const std::string block = "a\n{ texture: 1" + state + ", <0, 0, 0, 1>\nmultitexture: 1, 2" +
                              state + ", <1, 1, 1, 1>\ncolor: <1, 1, 1, 1>\nblend: one, one\n}\n";
    const std::string whole = LoadedPool(block + "#" + block).summary();
    std::minstd_rand random; // the same rubbish every time
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const LoadedPool cut(whole.substr(0, length));
        std::string sound = cut.summary(); // all but a shader that failed, which comes last
        if (isError(cut.result))
            sound.erase(sound.rfind("\n{"));
        sound.erase(sound.rfind('\n') + 1);
        EXPECT_TRUE(whole.starts_with(sound)) << length;
        std::string rubbish = whole;
        for (std::size_t i = 0; i < length; ++i)
            rubbish[random() % whole.size()] = static_cast<char>(random());
        const std::string rest = LoadedPool(rubbish).summary();
        EXPECT_EQ(LoadedPool(rest).summary(), rest);
    }
}

TEST(ShaderPool, HoldsTenThousandShadersAndLayers)
{
    std::string thin, thick = "thick c\n{";
    for (int i = 0; i < 10000; ++i) {
        const std::string layer =
            " color: <0.000000, 0.000000, 0.000000, " + std::to_string(i) + ".000000>\n";
        thin += "thin c\n{" + layer + "}\n";
        thick += layer;
    }
    const LoadedPool loaded(thin + thick + "}\n");
    EXPECT_EQ(loaded.log, "Loading pool... ok, 10001 textures loaded\n");
    EXPECT_TRUE(loaded.summary() == thin + thick + "}\n");
}
