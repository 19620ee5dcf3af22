#include "zrk/textures/image_load.h"

#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

struct Image {
    std::string name, file;
    bool loads = false;
};

std::string changed(std::string file, std::size_t position, char byte)
{
    file[position] = byte;
    return file;
}

// Two pixels: the codes clear, 0, 1 and end, of three bits each.
const std::string gif = "GIF89a\2\0\1\0\x80\0\0abcdef!\xf9\4\0\0\0\0\0,\0\0\0\0\2\0\1\0\0\2\2"s
                        "\x44\x0a\0;"s;
const std::string xpm = "/* XPM */\"2 1 2 1\",\"a c #010203\",\"b c red\",\"ab\"};";
const std::string pcx = "\x0a\5\1\x08\0\0\0\0\1\0\0\0"s + std::string(53, '\0') + "\1\2\0"s +
                        std::string(60, '\0') + "ab\x0c" + std::string(768, 'c');
const std::string lbm =
    "FORM\0\0\0\x48PBM BMHD\0\0\0\x14\0\x10\0\1\0\0\0\0\x08\0\0\0\0\0\1\1\0\x10\0\1"
    "CMAP\0\0\0\6abcdefBODY\0\0\0\x10"s +
    std::string(16, '\1');
const Image images[] = {
    {"Gif", gif, true},
    {"GifOfUndefinedCodes", changed(gif, 39, '\x74')},
    {"GifOfManyColourBits", changed(gif, 37, '\x0c')},
    {"GifWithoutWidth", changed(gif, 32, '\0')},
    {"Xpm", xpm, true},
    {"XpmOfAnUnknownColour", changed(xpm, xpm.size() - 5, 'c')},
    {"XpmOfManyRows", changed(xpm, 12, '9')},
    {"Pcx", pcx, true},
    {"PcxOfNegativeWidth", changed(pcx, 5, '\1')},
    {"PcxOfShortLines", changed(pcx, 66, '\1')},
    {"Lbm", lbm, true},
    {"LbmOfAShortHeader", changed(lbm, 19, '\x10')},
    {"LbmOfManyColours", changed(lbm, 46, '\4')},
    {"BmpOf264Bits",
     "BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x08\1"s + std::string(64, '\0')},
    {"GifOfFewerBytesThanPixels", changed(changed(gif, 33, '\x3f'), 35, '\x7f')},
    {"Pnm", "P3 # text\n2 1\n255\n1 2 3 4 5 6\n", true},
    {"PnmOfMissingNumbers", "P3\n8000 8000\n255\n1 2 3"},
    {"Jpeg", "\xff\xd8\xff"},
    {"Xv", "P7 332\n#END_OF_COMMENTS\n1 1 255\nx"},
    {"Xcf", "gimp xcf file\0"s},
    // Ends within a chunk before the image data, where the decoder would never stop.
    {"PngWithoutImage",
     "\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\0\3\0\0\0\2\x08\2\0\0\0\x12\x16\xf1\x4d"
     "\0\0\0\40cHRM\0\0\x7a\x26\0\0\x80\x84"s},
};

class ImageFile : public testing::TestWithParam<Image> {};

INSTANTIATE_TEST_SUITE_P(, ImageFile, testing::ValuesIn(images),
                         [](const auto& image) { return image.param.name; });

} // namespace

TEST_P(ImageFile, LoadsOrIsRefusedWhereverItEnds)
{
    const TemporaryDirectory directory;
    const auto& [name, file, loads] = GetParam();
    for (std::size_t length = 0; length < file.size(); length += 1 + length / 64) {
        directory.write("image", file.substr(0, length));
        (void)zrk::loadImage("image"); // comes back
    }
    directory.write("image", file);
    EXPECT_EQ(zrk::loadImage("image") != nullptr, loads);
}
