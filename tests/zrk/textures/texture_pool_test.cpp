#include "zrk/textures/texture_pool.h"

#include "tests/support/allocations.h"
#include "tests/support/temporary_directory.h"
#include "zrk/cexception.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

struct PoolFile {
    std::string name, text;
    std::string expected; ///< The code and the log.
    std::string first;    ///< The first texture's options and bits per pixel.
    const char* fileName = "pool";
};

const std::string loaded = "0 Successfully loaded `pool'\n", warning = " Undefined warning\n";
const std::string noImage = "Error: cannot load image '";
const std::string notClosed = "2 Error closing file `unclosable'\n";
std::string repeated(int times, const std::string& line)
{
    std::string lines;
    while (times-- > 0)
        lines += line;
    return lines;
}

const PoolFile poolFiles[] = {
    {"ManyTextures", "3000\n" + repeated(3000, "colour.ppm mask\n"), loaded, "mask 32"},
    {"CarriageReturnsAndARest", " +1 texture\r\ngrey.pgm\r\nnever read", loaded, "32"},
    {"OptionsOfAnIntensityImage", "1\ngrey.pgm grey,mask, mipmap ,mask\n", loaded,
     "mipmap mask grey 8"},
    {"OptionOfAColourImage", "2\ncolour.ppm,gray\ngrey.pgm\n", loaded, "grey 32"},
    // 1023 characters fill a line: what follows is another.
    {"LongestLine", "2\ngrey.pgm mask" + std::string(1010, ' ') + "grey.pgm\n", loaded, "mask 32"},
    {"Empty", "", "-1" + warning, ""},
    {"NoTextures", "0\ngrey.pgm\n", "-2" + warning, ""},
    {"NegativeCount", "-99999999999999999999\ngrey.pgm\n", "-2" + warning, ""},
    {"HugeCount", "99999999999999999999\ngrey.pgm gray\n", "-4" + warning, "grey 8"},
    {"ReadError", "2\ngrey.pgm\n", "3 Error reading in file `unreadable'\n", "32", "unreadable"},
    {"NotClosed", "2\ngrey.pgm\n", notClosed, "32", "unclosable"},
    {"MissingImage", "4000000000\ngrey.pgm\nno.tga\n", "-100 " + noImage + "no.tga'\n", "32"},
    {"MissingName", "1\n , ,\n", "-100 " + noImage + "'\n", ""},
    {"TabInTheName", "1\ngrey.pgm\tmask\n", "-100 " + noImage + "grey.pgm\tmask'\n", ""},
    {"UnknownOption", "1\ngrey.pgm,gray,Mipmap\n", "5 Unknown texture parameter `Mipmap'\n",
     "grey 8"},
    {"UnknownOptionBeforeClosing", "1\ngrey.pgm x\n", "5 Unknown texture parameter `x'\n", "8",
     "unclosable"},
};

class TexturePoolFile : public testing::TestWithParam<PoolFile> {};

INSTANTIATE_TEST_SUITE_P(, TexturePoolFile, testing::ValuesIn(poolFiles),
                         [](const auto& file) { return file.param.name; });

} // namespace

TEST_P(TexturePoolFile, GivesACodeALineAndItsTextures)
{
    const auto& [caseName, text, expected, first, name] = GetParam();
    const TemporaryDirectory directory;
    directory.write("grey.pgm", "P5 1 1 255\nx");
    directory.write("colour.ppm", "P6 1 1 255\nabc");
    directory.write(name, text);
    zrk::TexturePool pool;
    std::ostringstream log, options;
    const std::int32_t code = pool.load(name, &log);
    EXPECT_EQ(std::to_string(code) + " " + log.str(), expected);
    EXPECT_STREQ(pool.fileName.cString(), code == 0 ? name : "");
    if (const zrk::Texture* texture = pool.textures.get(); texture && texture->surface)
        options << (texture->mipmap ? "mipmap " : "") << (texture->mask ? "mask " : "")
                << (texture->grey ? "grey " : "") << int{texture->surface->format->BitsPerPixel};
    EXPECT_EQ(options.str(), first);
}

TEST(TexturePool, LoadsWithoutALogAndIsEmptyWithoutMemory)
{
    zrk::TexturePool pool;
    EXPECT_EQ(pool.load("missing", nullptr), 1);
    const allocations::Failure failure(1);
    EXPECT_THROW(pool.resize(2), zrk::Cexception);
    EXPECT_EQ(pool.count, 0u);
}
