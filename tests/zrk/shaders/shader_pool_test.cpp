#include "zrk/shaders/shader_pool.h"

#include "tests/zrk/shaders/sample_pool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <utility>

using namespace zrk;
using namespace std::string_literals;

namespace {

bool closingFails = false;

const std::string block = "a\n{\n texture: 1, linear, linear, repeat, repeat, decal, <0, 0, 0, 1>\n"
                          " multitexture: 1, 2, linear, linear, clamp, clamp, blend, <1, 1, 1, 1>\n"
                          " color: <1, 1, 1, 1>\n blend: one, one\n}\n";

} // namespace

// Linked in place of the C library's.
extern "C" int __real_fclose(std::FILE* file);
extern "C" int __wrap_fclose(std::FILE* file)
{
    const int result = __real_fclose(file);
    return closingFails ? EOF : result;
}

TEST(ShaderPool, ReportsFilesThatCannotBeOpenedReadOrClosed)
{
    EXPECT_EQ(ShaderPool().load("/", nullptr), ShaderResult::cannotOpenFile);
    EXPECT_EQ(ShaderPool().load("", nullptr), ShaderResult::cannotOpenFile);
    // A process may open its own memory, but there is nothing at address 0 to read.
    EXPECT_EQ(ShaderPool().load("/proc/self/mem", nullptr), ShaderResult::readError);
    closingFails = true;
    const LoadedPool good(block), bad("word");
    closingFails = false;
    EXPECT_EQ(good.result, ShaderResult::cannotCloseFile);
    EXPECT_EQ(good.log, "error: cannot close file\n");
    EXPECT_EQ(bad.result, ShaderResult::cannotCloseFile);
    EXPECT_EQ(bad.log, "error: missing '{'\nerror: cannot close file\n");
}

TEST(ShaderPool, AppendsAndKeepsTheNameOfTheLastGoodFile)
{
    LoadedPool loaded(block);
    const std::string before = loaded.summary();
    loaded.pool.fileName = "good.txt";
    loaded.load("b\n{\nblend: one, one\n");
    EXPECT_STREQ(loaded.pool.fileName.cString(), "good.txt");
    loaded.load("c\n{\nblend: zero, one\n}\n");
    EXPECT_EQ(std::string(loaded.pool.fileName.cString()).find("/proc/self/fd/"), 0u);
    EXPECT_EQ(loaded.summary(), before + "b[b] blend: one, one;\nc[b] blend: zero, one;\n");
}

TEST(ShaderPool, TakesLongLinesInPieces)
{
    // One character over cuts the last letter off, and many over both words.
    const std::pair<std::size_t, ShaderResult> lengths[] = {
        {16382, ShaderResult::ok},
        {16383, ShaderResult::ok},
        {16384, ShaderResult::unknownParameter},
        {40000, ShaderResult::wrongParameterCount},
    };
    const std::string rest = "\n{\nblend: one, one\n}\n";
    for (const auto& [length, result] : lengths) {
        const std::string name(std::min<std::size_t>(length, 16383), 'n');
        EXPECT_EQ(LoadedPool(std::string(length, 'n') + rest).summary(),
                  name + "[b] blend: one, one;\n");
        EXPECT_EQ(poolOf("blend:" + std::string(length - 14, ' ') + "one, one").result, result);
    }
}

TEST(ShaderPool, EndsALineAtANulByteAndDropsTheReturnBeforeALineFeed)
{
    EXPECT_EQ(LoadedPool("a\r\n{ \r\n blend: one, one\r\n}\r\n").summary(),
              "a[b] blend: one, one;\n");
    EXPECT_EQ(LoadedPool("a\0b\n{\n\0blend\nblend: one, one\0 x\n}\0\n"s).summary(),
              "a[b] blend: one, one;\n");
    EXPECT_EQ(poolOf("blend: one\0, one"s).result, ShaderResult::wrongParameterCount);
}

TEST(ShaderPool, SurvivesAFileThatEndsAnywhere)
{
    const std::string text = block + "#" + block + "\n" + block;
    const std::string whole = LoadedPool(text).summary();
    for (std::size_t length = 0; length < text.size(); ++length) {
        const LoadedPool cut(text.substr(0, length));
        const bool failed = isError(cut.result);
        std::string sound = cut.summary(); // all but a shader that failed, which comes last
        if (failed)
            sound.erase(sound.rfind('\n', sound.size() - 2) + 1);
        EXPECT_TRUE(whole.starts_with(sound)) << length;
        EXPECT_EQ(cut.log.starts_with("error: "), failed) << length;
    }
}

TEST(ShaderPool, SurvivesRubbish)
{
    const std::string_view words[] = {"a",      "\n",    "{",  "}",    " ",      "texture",
                                      "blend",  "color", ":",  ", ",   "linear", "one",
                                      "<",      "1e999", ">",  "\r\n", "\r",     "4",
                                      "repeat", "-1",    "\t", "\xff", "nan",    "decal"};
    std::minstd_rand random; // the same rubbish every time
    for (int file = 0; file < 500; ++file) {
        std::string text;
        for (int i = 0; i < 200; ++i)
            text += random() % 20 == 0 ? std::string(1, static_cast<char>(random()))
                                       : words[random() % std::size(words)];
        const LoadedPool loaded(text);
        EXPECT_EQ(loaded.log.find("error: ") != std::string::npos, isError(loaded.result));
        EXPECT_EQ(loaded.log.find("ok, ") != std::string::npos, loaded.result == ShaderResult::ok);
    }
}

TEST(ShaderPool, HoldsTenThousandShadersAndLayers)
{
    std::string shaders, layers;
    for (int i = 0; i < 10000; ++i) {
        shaders += "s" + std::to_string(i) + "\n{\ncolor: 1 1 1 1\n}\n";
        layers += "color: 1 1 1 " + std::to_string(i) + "\n";
    }
    const LoadedPool many(shaders), thick = poolOf(layers);
    EXPECT_EQ(many.log, "ok, 10000 textures loaded\n");
    EXPECT_STREQ(many.pool[9999].name.cString(), "s9999");
    ASSERT_EQ(thick.pool[0].layers().size(), 10000u);
    EXPECT_TRUE(textOf(*thick.pool[0].layers()[9999]).ends_with(" 9999.000000>"));
}
