#include "zrk/textures/texture_pool.h"

#include "tests/support/allocations.h"
#include "tests/support/temporary_directory.h"
#include "zrk/cexception.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

namespace {

/// What is opened under the name "faulty": `text`, then an error if `readFails`.
struct FaultyFile {
    std::string text;
    bool readFails, closeFails;
};

FaultyFile faulty = {};

ssize_t readFaulty(void*, char* buffer, size_t size)
{
    if (faulty.text.empty())
        return faulty.readFails ? -1 : 0;
    const std::size_t bytes = faulty.text.copy(buffer, size);
    faulty.text.erase(0, bytes);
    return static_cast<ssize_t>(bytes);
}

int closeFaulty(void*)
{
    return faulty.closeFails ? EOF : 0;
}

} // namespace

extern "C" std::FILE* __real_fopen(const char* name, const char* mode);

extern "C" std::FILE* __wrap_fopen(const char* name, const char* mode)
{
    if (std::string_view(name) != "faulty")
        return __real_fopen(name, mode);
    return fopencookie(nullptr, mode, {readFaulty, nullptr, nullptr, closeFaulty});
}

namespace {

using Result = std::pair<std::int32_t, std::string>; // code and log

class TexturePool : public testing::Test {
protected:
    TexturePool()
    {
        directory.write("grey.pgm", "P5 1 1 255\nx");
        directory.write("colour.ppm", "P6 1 1 255\nabc");
    }

    Result load(const char* name)
    {
        std::ostringstream log;
        const std::int32_t code = pool.load(name, &log);
        return {code, log.str()};
    }

    Result loadText(const std::string& text)
    {
        directory.write("pool.txt", text);
        return load("pool.txt");
    }

    const TemporaryDirectory directory;
    zrk::TexturePool pool;
};

const Result loaded = {0, "Successfully loaded `pool.txt'\n"};
const std::string noImage = "Error: cannot load image '";

TEST_F(TexturePool, AnswersEachFileWithACodeAndALine)
{
    const std::string warning = "Undefined warning\n";
    const std::pair<const char*, Result> cases[] = {
        {" +2 textures\r\ngrey.pgm\r\ncolour.ppm mask\r\nnever read", loaded},
        {"", {-1, warning}},
        {"0\ngrey.pgm\n", {-2, warning}},
        {"grey.pgm\n", {-2, warning}},
        {"-99999999999999999999\ngrey.pgm\n", {-2, warning}},
        {"3\ngrey.pgm\ngrey.pgm\n", {-4, warning}},
        {"99999999999999999999\ngrey.pgm\n", {-4, warning}},
        {"4000000000\nmissing.tga\n", {-100, noImage + "missing.tga'\n"}},
        {"1\n , ,\n", {-100, noImage + "'\n"}},
        {"1\ngrey.pgm\tmask\n", {-100, noImage + "grey.pgm\tmask'\n"}},
        {"1\ngrey.pgm Mipmap\n", {5, "Unknown texture parameter `Mipmap'\n"}},
        {"1\ngrey.pgm,mask,masks,mask\n", {5, "Unknown texture parameter `masks'\n"}},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(loadText(text), expected) << text;
        EXPECT_EQ(pool.load("pool.txt", nullptr), expected.first) << text;
    }
}

TEST_F(TexturePool, TakesOptionsInAnyOrderBetweenAnySeparators)
{
    // Options, the flags that they set, and the depth that an 8-bit image then has.
    const std::pair<const char*, std::string> cases[] = {
        {"", "32"},
        {",mipmap", "mipmap 32"},
        {" , , mipmap", "mipmap 32"},
        {" grey,mask, mipmap ,mask", "mipmap mask grey 8"},
        {" gray", "grey 8"},
    };
    for (const auto& [options, expected] : cases) {
        ASSERT_EQ(loadText("1\ngrey.pgm" + std::string(options) + "\n"), loaded);
        const zrk::Texture& texture = pool.textures[0];
        const std::string flags = std::string(texture.mipmap ? "mipmap " : "") +
                                  (texture.mask ? "mask " : "") + (texture.grey ? "grey " : "");
        EXPECT_EQ(flags + std::to_string(texture.surface->format->BitsPerPixel), expected);
    }
}

TEST_F(TexturePool, KeepsWhatStandsBeforeTheFailingLine)
{
    // Fifteen and 1008 characters fill a line of 1023: what follows is another line.
    ASSERT_EQ(loadText("2\ncolour.ppm mask" + std::string(1008, ' ') + "grey.pgm\n"), loaded);
    directory.write("other.txt", "3\ngrey.pgm\nmissing.tga\ngrey.pgm\n");
    EXPECT_EQ(load("other.txt").first, -100);
    EXPECT_EQ(pool.count, 3u);
    EXPECT_STREQ(pool.textures[0].fileName.cString(), "grey.pgm");
    EXPECT_EQ(pool.textures[2].surface, nullptr);
    EXPECT_STREQ(pool.fileName.cString(), "pool.txt");
    const allocations::Failure failure(1);
    EXPECT_THROW(zrk::TexturePool().resize(2), zrk::Cexception);
}

TEST_F(TexturePool, ReportsFilesThatCannotBeReadOrClosed)
{
    const std::string notClosed = "Error closing file `faulty'\n";
    const std::pair<FaultyFile, Result> cases[] = {
        {{"", false, true}, {2, notClosed}},
        {{"1\ngrey.pgm\n", false, true}, {2, notClosed}},
        {{"1\nmissing.tga\n", false, true}, {2, noImage + "missing.tga'\n" + notClosed}},
        {{"1\ngrey.pgm x\n", false, true}, {5, "Unknown texture parameter `x'\n"}},
        {{"2\ngrey.pgm\n", true, true}, {2, notClosed}},
        {{"2\ngrey.pgm\n", true, false}, {3, "Error reading in file `faulty'\n"}},
        {{"", true, false}, {-1, "Undefined warning\n"}},
    };
    for (const auto& [file, expected] : cases) {
        faulty = file;
        EXPECT_EQ(load("faulty"), expected);
    }
    EXPECT_STREQ(pool.fileName.cString(), "");
}

} // namespace
