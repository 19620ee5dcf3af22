#include "zrk/textures/texture_pool.h"

#include "tests/support/allocations.h"
#include "tests/support/temporary_directory.h"
#include "zrk/cexception.h"

#include <gtest/gtest.h>

#include <sstream>

TEST(TexturePool, AnswersEachFileWithACodeAndALine)
{
    const std::string loaded = "0 Successfully loaded `pool'\n", warning = " Undefined warning\n";
    const std::string noImage = "Error: cannot load image '";
    const std::string notClosed = "2 Error closing file `unclosable'\n";
    // The file, the code and the log, the first texture's options and bits a pixel, the name.
    const struct {
        std::string text, expected, first;
        const char* name = "pool";
    } cases[] = {
        {" +1 texture\r\ngrey.pgm\r\nnever read", loaded, "32"},
        {"1\ngrey.pgm grey,mask, mipmap ,mask\n", loaded, "mipmap mask grey 8"},
        {"2\ncolour.ppm,gray\ngrey.pgm\n", loaded, "grey 32"},
        // 1023 characters fill a line: what follows is another.
        {"2\ngrey.pgm mask" + std::string(1010, ' ') + "grey.pgm\n", loaded, "mask 32"},
        {"", "-1" + warning, ""},
        {"0\ngrey.pgm\n", "-2" + warning, ""},
        {"-99999999999999999999\ngrey.pgm\n", "-2" + warning, ""},
        {"99999999999999999999\ngrey.pgm gray\n", "-4" + warning, "grey 8"},
        {"2\ngrey.pgm\n", "3 Error reading in file `unreadable'\n", "32", "unreadable"},
        {"2\ngrey.pgm\n", notClosed, "32", "unclosable"},
        {"4000000000\ngrey.pgm\nno.tga\n", "-100 " + noImage + "no.tga'\n", "32"},
        {"1\n , ,\n", "-100 " + noImage + "'\n", ""},
        {"1\ngrey.pgm\tmask\n", "-100 " + noImage + "grey.pgm\tmask'\n", ""},
        {"1\ngrey.pgm,gray,Mipmap\n", "5 Unknown texture parameter `Mipmap'\n", "grey 8"},
        {"1\ngrey.pgm x\n", "5 Unknown texture parameter `x'\n", "8", "unclosable"},
    };
    const TemporaryDirectory directory;
    directory.write("grey.pgm", "P5 1 1 255\nx");
    directory.write("colour.ppm", "P6 1 1 255\nabc");
    for (const auto& [text, expected, first, name] : cases) {
        directory.write(name, text);
        zrk::TexturePool pool;
        std::ostringstream log, options;
        const std::int32_t code = pool.load(name, &log);
        EXPECT_EQ(std::to_string(code) + " " + log.str(), expected) << text;
        EXPECT_STREQ(pool.fileName.cString(), code == 0 ? name : "");
        if (const zrk::Texture* texture = pool.textures.get(); texture && texture->surface)
            options << (texture->mipmap ? "mipmap " : "") << (texture->mask ? "mask " : "")
                    << (texture->grey ? "grey " : "")
                    << int{texture->surface->format->BitsPerPixel};
        EXPECT_EQ(options.str(), first) << text;
    }
    EXPECT_EQ(zrk::TexturePool().load("missing", nullptr), 1);
    const allocations::Failure failure(
        3); // the first two are the texts of the pool and of the name
    EXPECT_THROW(zrk::TexturePool().resize(2), zrk::Cexception);
}
