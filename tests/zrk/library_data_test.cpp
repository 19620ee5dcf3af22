#include "zrk/library_data.h"

#include "tests/support/gl_recorder.h"
#include "tests/support/temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace {

TEST(LibraryData, LoadsWhatTheDataFileNames)
{
    struct Case {
        std::string dataFile;
        std::int32_t result;
        std::string log;
    };
    const std::string good = "Successfully loaded `my textures.txt'\n";
    const std::string textureError = "Error loading textures pool file : '";
    const std::string shaderError = "Error loading shaders pool file : '";
    const std::string longest(4094, 'x'); // and a line feed
    const Case cases[] = {
        {"", 1, "Error opening file `'\n" + textureError + "'\n"},
        {longest + "\n", 1,
         "Error opening file `" + longest + "'\n" + textureError + longest + "'\n"},
        {"broken.txt\nmy shaders.txt\n", -100,
         "Error: cannot load image 'missing.tga'\n" + textureError + "broken.txt'\n"},
        {"my textures.txt\n", 6, good + shaderError + "'\n"},
        {"my textures.txt\r\nmy shaders.txt\nnever read", 0, good},
    };
    const TemporaryDirectory directory;
    directory.write("image.pgm", "P5 1 1 255\nx");
    directory.write("my textures.txt", "2\nimage.pgm\nimage.pgm grey\n");
    directory.write("broken.txt", "1\nmissing.tga\n");
    directory.write("my shaders.txt", "first\n{\ntexture: 1, linear, linear, repeat, repeat, "
                                      "modulate, 0, 0, 0, 0\n}\n");
    for (const auto& [dataFile, result, log] : cases) {
        directory.write("data.qvd", dataFile);
        std::ostringstream written;
        EXPECT_EQ(zrk::LibraryData().loadData("data.qvd", &written), result);
        EXPECT_EQ(written.str(), log);
        EXPECT_EQ(zrk::LibraryData().loadData("data.qvd", nullptr), result);
    }
    std::ostringstream log;
    EXPECT_EQ(zrk::LibraryData().loadData("missing.qvd", &log), 1);
    EXPECT_EQ(log.str(), "Cannot open file\"missing.qvd\"\n");

    gl_recorder::reset();
    zrk::LibraryData library; // of the last case's data file
    ASSERT_EQ(library.loadData("data.qvd", nullptr), 0);
    library.upload();
    EXPECT_EQ(library.textures.textures[1].glName, 2u);
    gl_recorder::takeCalls();
    library.shaders[0].apply();
    EXPECT_THAT(gl_recorder::takeCalls(), testing::Contains("glBindTexture(GL_TEXTURE_2D, 2)"));
}

} // namespace
