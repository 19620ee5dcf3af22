#include "zrk/textures/texture.h"

#include "tests/support/gl_recorder.h"
#include "tests/support/temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>
#include <span>
#include <sstream>

namespace {

using namespace std::string_literals;
using testing::Each;
using testing::ElementsAre;

/// A Targa file of `bits` a pixel, rows from the top; pixels are blue, green, red and alpha, or two
/// bytes of 1-5-5-5. With a `palette` of such 24-bit colours they are indices.
std::string targa(int bits, int width, int height, const std::string& pixels,
                  const std::string& palette = "")
{
    const auto word = [](auto value) {
        return std::string{static_cast<char>(value), static_cast<char>(value >> 8)};
    };
    const auto flags = bits == 32 ? 0x2800 : 0x2000; // alpha bits, from the top
    return (palette.empty() ? "\0\0\2\0\0"s : "\0\1\1\0\0"s) + word(palette.size() / 3) +
           "\x18\0\0\0\0"s + word(width) + word(height) + word(flags | bits) + palette + pixels;
}

/// The pixels of a surface whose rows leave no gap.
template <typename Pixel>
std::span<const Pixel> pixelsOf(const zrk::Texture& texture)
{
    const SDL_Surface& surface = *texture.surface;
    return {static_cast<const Pixel*>(surface.pixels),
            static_cast<std::size_t>(surface.w * surface.h)};
}

TEST(TextureLoad, MakesColourImagesRgba)
{
    const TemporaryDirectory directory;
    const auto expectPixels = [&](int bits, const std::string& pixels, auto... expected) {
        directory.write("image.tga", targa(bits, 2, 1, pixels));
        zrk::Texture texture;
        ASSERT_EQ(texture.load("image.tga", nullptr), 0);
        EXPECT_THAT(pixelsOf<std::uint32_t>(texture), ElementsAre(expected...));
        EXPECT_STREQ(texture.fileName.cString(), "image.tga");
    };
    expectPixels(16, "\x00\x7c\xe0\x03"s, 0xff0000f8, 0xff00f800); // SDL shifts 5 bits to 8
    expectPixels(24, "\x03\x02\x01\xff\x80\x10"s, 0xff030201, 0xffff8010);
    expectPixels(32, "\x03\x02\x01\x7f\x06\x05\x04\x01"s, 0x7f030201u, 0x01060504u);
}

TEST(TextureLoad, ShrinksToTheNearestSourcePixel)
{
    const TemporaryDirectory directory;
    const auto expectSize = [&](int width, int height, int newWidth, int newHeight) {
        std::string pixels; // blue: the row, green and red: the column, half transparent
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                pixels +=
                    {static_cast<char>(y), static_cast<char>(x >> 8), static_cast<char>(x), 64};
        directory.write("image.tga", targa(32, width, height, pixels));
        zrk::Texture texture;
        ASSERT_EQ(texture.load("image.tga", nullptr), 0);
        const auto shrunk = pixelsOf<std::uint32_t>(texture);
        ASSERT_EQ(shrunk.size(), static_cast<std::size_t>(newWidth * newHeight));
        int wrong = 0;
        for (int i = 0; i < newWidth * newHeight; ++i) {
            const int x = (i % newWidth * (width * 65536 / newWidth)) >> 16;
            const int y = (i / newWidth * (height * 65536 / newHeight)) >> 16;
            const auto expected = 0xff000000u | static_cast<std::uint32_t>((y & 255) << 16 | x);
            wrong += shrunk[static_cast<std::size_t>(i)] != expected; // what is shrunk is opaque
        }
        EXPECT_EQ(wrong, 0) << width << " x " << height;
    };
    expectSize(1024, 1024, 512, 512);
    expectSize(600, 300, 512, 300);
    expectSize(3, 513, 3, 512);
}

TEST(TextureLoad, KeepsPaletteAndIndicesOfAShrunkImage)
{
    const TemporaryDirectory directory;
    const std::string palette = "\x01\x02\x03\x04\x05\x06\x04\x05\x06"; // 1 and 2 look the same
    directory.write("image.tga", targa(8, 1024, 2, std::string(2048, '\x02'), palette));
    zrk::Texture texture;
    ASSERT_EQ(texture.load("image.tga", nullptr), 0);
    EXPECT_EQ(texture.surface->w, 512);
    EXPECT_THAT(pixelsOf<std::uint8_t>(texture), Each(2));
    ASSERT_EQ(texture.surface->format->palette->ncolors, 3);
    EXPECT_EQ(texture.surface->format->palette->colors[2].r, 6);
}

TEST(TextureLoad, RefusesWithOneLineAndChangesNothing)
{
    const TemporaryDirectory directory;
    std::filesystem::create_directory("directory.tga");
    directory.write("words.tga", "no image");
    directory.write("short.pgm", "P5 2 2 255\nabc");
    directory.write("wide.pgm", "P5 65536 1 255\n" + std::string(65536, 'x'));
    // Ends within a chunk before the image data, where the decoder would never stop.
    directory.write("short.png", "\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\0\3\0\0\0\2\x08\2\0\0\0"
                                 "\x12\x16\xf1\x4d\0\0\0\x20"
                                 "cHRM\0\0\x7a\x26\0\0\x80\x84"s);
    directory.write("good.tga", targa(24, 1, 1, "abc"));
    zrk::Texture texture;
    ASSERT_EQ(texture.load("good.tga", nullptr), 0);
    const SDL_Surface* const held = texture.surface.get();
    for (const char* name :
         {"missing.tga", "directory.tga", "words.tga", "short.pgm", "wide.pgm", "short.png", ""}) {
        std::ostringstream log;
        EXPECT_EQ(texture.load(name, &log), -1);
        EXPECT_EQ(log.str(), "Error: cannot load image '" + std::string(name) + "'\n");
        EXPECT_EQ(texture.surface.get(), held);
        EXPECT_STREQ(texture.fileName.cString(), "good.tga");
    }
}

void giveSurface(zrk::Texture& texture, int bits)
{
    texture.surface.reset(SDL_CreateRGBSurface(0, 3, 2, bits, 0, 0, 0, 0));
    auto* bytes = static_cast<unsigned char*>(texture.surface->pixels);
    std::iota(bytes, bytes + 2 * texture.surface->pitch, static_cast<unsigned char>(0));
}

TEST(Texture, SendsItsPixelsByDepthAndOptions)
{
    const auto expectUpload = [](int bits, bool mask, bool mipmap, const std::string& format,
                                 const std::string& type) {
        gl_recorder::reset();
        zrk::Texture texture;
        giveSurface(texture, bits);
        texture.mask = mask;
        texture.mipmap = mipmap;
        EXPECT_EQ(texture.upload(), 1u);
        std::string call = mipmap ? "gluBuild2DMipmaps(GL_TEXTURE_2D, #, 3, 2, #, "
                                  : "glTexImage2D(GL_TEXTURE_2D, 0, #, 3, 2, 0, #, ";
        for (int i = 0; i < 2; ++i)
            call.replace(call.find('#'), 1, format);
        call += type;
        call += ", pixels)";
        EXPECT_THAT(gl_recorder::takeCalls(),
                    ElementsAre("glGenTextures(1)", "glBindTexture(GL_TEXTURE_2D, 1)", call,
                                "glGetError()"));
        EXPECT_EQ(texture.upload(), 1u);
        EXPECT_THAT(gl_recorder::takeCalls(), ElementsAre("glGetError()"));
    };
    expectUpload(32, true, false, "GL_RGBA", "GL_UNSIGNED_BYTE");
    expectUpload(24, true, true, "GL_RGB", "GL_UNSIGNED_BYTE");
    expectUpload(16, true, false, "GL_RGB", "GL_UNSIGNED_SHORT_5_6_5");
    expectUpload(8, true, true, "GL_ALPHA", "GL_UNSIGNED_BYTE");
    expectUpload(8, false, false, "GL_LUMINANCE", "GL_UNSIGNED_BYTE");
    // Rows of four bytes, three of them pixels.
    EXPECT_THAT(gl_recorder::uploadedPixels(), ElementsAre(0, 1, 2, 4, 5, 6));
}

TEST(Texture, DeletesItsNameWithItsSurface)
{
    gl_recorder::reset();
    {
        zrk::Texture empty, loaded, uploaded;
        giveSurface(loaded, 32);
        giveSurface(uploaded, 32);
        uploaded.upload();
        gl_recorder::takeCalls();
        EXPECT_EQ(empty.upload(), 0u);
    }
    EXPECT_THAT(gl_recorder::takeCalls(),
                ElementsAre("glGetError()", "glDeleteTextures(1, 1)", "glDeleteTextures(1, 0)"));
}

TEST(TextureDeathTest, PendingOpenGlErrorEndsTheProcess)
{
    zrk::Texture empty;
    gl_recorder::setNextError(GL_INVALID_VALUE);
    EXPECT_EXIT(empty.upload(), testing::ExitedWithCode(255), // -1, of which eight bits are kept
                "^OpenGL error code 1281 : numeric argument out of range\\.\n$");
}

} // namespace
