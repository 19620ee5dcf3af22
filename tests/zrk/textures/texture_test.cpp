#include "zrk/textures/texture.h"

#include "tests/support/gl_recorder.h"
#include "tests/support/temporary_directory.h"
#include "zrk/textures/rgba32_format.h"

#include <gmock/gmock.h>

#include <span>
#include <sstream>

namespace {

using namespace std::string_literals;
using testing::ElementsAre;

/// A Targa file; its pixels are blue, green, red and alpha, its rows from the top.
std::string targa(int width, int height, const std::string& pixels)
{
    const auto word = [](int value) {
        return std::string{static_cast<char>(value), static_cast<char>(value >> 8)};
    };
    return "\0\0\2\0\0\0\0\0\0\0\0\0"s + word(width) + word(height) + "\x20\x28" + pixels;
}

/// The pixels of `texture` after it has loaded `file`.
template <typename Pixel>
std::span<const Pixel> load(zrk::Texture& texture, const char* name, const std::string& file)
{
    const TemporaryDirectory directory;
    directory.write(name, file);
    EXPECT_EQ(texture.load(name, nullptr), 0);
    const SDL_Surface& surface = *texture.surface;
    return {static_cast<const Pixel*>(surface.pixels),
            static_cast<std::size_t>(surface.w * surface.h)};
}

TEST(TextureLoad, ShrinksToTheNearestSourcePixel)
{
    zrk::Texture texture;
    EXPECT_THAT(load<std::uint32_t>(texture, "image.tga", targa(1, 1, "\x03\x02\x01\x7f")),
                ElementsAre(0x7f030201u));
    std::string source; // blue: the row, green and red: the column, half transparent
    for (int i = 0; i < 600 * 513; ++i)
        source += {static_cast<char>(i / 600), static_cast<char>(i % 600 >> 8),
                   static_cast<char>(i % 600), 64};
    const auto shrunk = load<std::uint32_t>(texture, "image.tga", targa(600, 513, source));
    ASSERT_EQ(shrunk.size(), 512u * 512u);
    for (std::uint32_t i = 0; i < shrunk.size(); ++i) {
        const std::uint32_t x = i % 512 * (600 * 65536 / 512) >> 16;
        const std::uint32_t y = i / 512 * (513 * 65536 / 512) >> 16;
        ASSERT_EQ(shrunk[i], 0xff000000u | (y & 255) << 16 | x); // what is shrunk is opaque
    }
    EXPECT_THAT(
        load<std::uint8_t>(texture, "image.pgm", "P5 16383 1 255\n" + std::string(16383, '\x07')),
        testing::AllOf(testing::SizeIs(512), testing::Each(7)));
    EXPECT_EQ(texture.surface->format->palette->colors[7].r, 7);
    load<std::uint8_t>(texture, "image.xpm",
                       "/* XPM */ {\n\"513 1 1 1\",\n\"a c None\",\n\"" + std::string(513, 'a') +
                           "\"};\n");
    EXPECT_EQ(texture.surface->w, 512);
    EXPECT_NE(texture.surface->flags & SDL_SRCCOLORKEY, 0u); // is transparent yet
}

TEST(Rgba32Format, TakesIndicesBeyondThePaletteForBlack)
{
    const zrk::OwnedSurface image(SDL_CreateRGBSurface(0, 1, 1, 8, 0, 0, 0, 0));
    *static_cast<std::uint8_t*>(image->pixels) = 200;
    image->format->palette->ncolors = 1;
    const zrk::OwnedSurface converted = zrk::toRgba32(*image);
    EXPECT_EQ(*static_cast<std::uint32_t*>(converted->pixels), 0xff000000u);
}

TEST(TextureLoad, RefusesWithOneLineAndChangesNothing)
{
    zrk::Texture texture;
    const auto pixels = load<std::uint32_t>(texture, "image.tga", targa(1, 1, "abcd"));
    const TemporaryDirectory directory;
    directory.write("short.pgm", "P5 2 2 255\nabc");
    directory.write("wide.pgm", "P5 16384 1 255\n" + std::string(16384, 'x'));
    directory.write("high.pgm", "P5 1 65536 255\n" + std::string(65536, 'x'));
    ASSERT_TRUE(directory.makeFifo("fifo.tga"));
    for (const std::string name :
         {"missing.tga", "short.pgm", "wide.pgm", "high.pgm", "fifo.tga", ""}) {
        std::ostringstream log;
        EXPECT_EQ(texture.load(name.c_str(), &log), -1);
        EXPECT_EQ(log.str(), "Error: cannot load image '" + name + "'\n");
    }
    EXPECT_THAT(pixels, ElementsAre(0x64616263u));
    EXPECT_STREQ(texture.fileName.cString(), "image.tga");
}

struct Upload {
    std::string name;
    int bits;
    bool mask, mipmap;
    std::string format, type = "GL_UNSIGNED_BYTE";
};

const Upload uploads[] = {
    {"Rgba", 32, true, false, "GL_RGBA"},
    {"Rgb", 24, true, true, "GL_RGB"},
    {"SixteenBits", 16, true, false, "GL_RGB", "GL_UNSIGNED_SHORT_5_6_5"},
    {"Alpha", 8, true, true, "GL_ALPHA"},
    {"Luminance", 8, false, true, "GL_LUMINANCE"},
};

class TextureUpload : public testing::TestWithParam<Upload> {};

INSTANTIATE_TEST_SUITE_P(, TextureUpload, testing::ValuesIn(uploads),
                         [](const auto& upload) { return upload.param.name; });

TEST_P(TextureUpload, SendsThePixelsOnce)
{
    const auto& [name, bits, mask, mipmap, format, type] = GetParam();
    gl_recorder::reset();
    {
        zrk::Texture texture;
        texture.surface.reset(SDL_CreateRGBSurface(0, 3, 2, bits, 0, 0, 0, 0));
        texture.mask = mask;
        texture.mipmap = mipmap;
        EXPECT_EQ(texture.upload(), 1u);
        EXPECT_EQ(texture.upload(), 1u);
    }
    const std::string call =
        (mipmap ? "gluBuild2DMipmaps(GL_TEXTURE_2D, " : "glTexImage2D(GL_TEXTURE_2D, 0, ") +
        format + ", 3, 2, " + (mipmap ? "" : "0, ") + format + ", " + type + ", pixels)";
    EXPECT_THAT(gl_recorder::takeCalls(),
                ElementsAre("glGenTextures(1)", "glBindTexture(GL_TEXTURE_2D, 1)", call,
                            "glGetError()", "glGetError()", "glDeleteTextures(1, 1)"));
}

#ifdef _WIN32
constexpr int lastStatus = -1;
#else
constexpr int lastStatus = 255; // -1, of which eight bits are kept
#endif

TEST(TextureDeathTest, PendingOpenGlErrorEndsTheProcess)
{
    zrk::Texture empty;
    gl_recorder::setNextError(GL_INVALID_VALUE);
    EXPECT_EXIT(empty.upload(), testing::ExitedWithCode(lastStatus),
                "^OpenGL error code 1281 : numeric argument out of range\\.\n$");
}

} // namespace
