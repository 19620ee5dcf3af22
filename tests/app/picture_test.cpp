#include "app/gl_window.h"
#include "app/scene.h"
#include "app/shell_state.h"
#include "tests/support/virtual_display.h"
#include "zrk/gl.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

// On real OpenGL, drawn into the window's kept picture; nothing needs to be swapped for that.
class Picture : public testing::Test {
protected:
    Picture()
    {
        setenv("QUAZO_WINDOWS_DIRECTORY", QUAZO_WINDOWS, 1);
        EXPECT_TRUE(openGlWindow("picture", 320, 240, 32));
        coverScreen(glWindow.window);
        startScene();
    }
    ~Picture() override { closeGlWindow(); }

    static void restart(unsigned seed)
    {
        std::srand(seed);
        randomizeMotions();
        animationTime = 0.0f;
        glClear(GL_COLOR_BUFFER_BIT);
    }

    /// Per pixel, the brightest of its channels.
    static std::vector<int> brightness()
    {
        const auto pixels =
            static_cast<std::size_t>(windowWidth) * static_cast<std::size_t>(windowHeight);
        std::vector<unsigned char> rgba(4 * pixels);
        glReadPixels(0, 0, windowWidth, windowHeight, GL_RGBA, GL_UNSIGNED_BYTE, rgba.data());
        std::vector<int> brightest(pixels);
        for (std::size_t i = 0; i < pixels; ++i)
            brightest[i] = *std::max_element(&rgba[4 * i], &rgba[4 * i + 3]);
        return brightest;
    }

private:
    VirtualDisplay display{"320x240x24"};
};

TEST_F(Picture, IsNeitherDarkNorBurntWhateverTheSeed)
{
    constexpr int seeds = 40;
    constexpr int frames = 150;
    double meanOfAll = 0.0;
    double burntOfAll = 0.0;
    for (unsigned seed = 1; seed <= seeds; ++seed) {
        restart(seed);
        for (int frame = 0; frame < frames; ++frame)
            ASSERT_TRUE(drawFrame());
        const std::vector<int> picture = brightness();
        const auto pixels = static_cast<double>(picture.size());
        double sum = 0.0;
        for (const int value : picture)
            sum += value;
        const double mean = sum / pixels;
        const auto burnt = static_cast<double>(std::count(picture.begin(), picture.end(), 255));
        EXPECT_GE(mean, 25.0) << "seed " << seed;
        EXPECT_LE(mean, 140.0) << "seed " << seed;
        EXPECT_LE(burnt / pixels, 0.08) << "seed " << seed;
        meanOfAll += mean / seeds;
        burntOfAll += burnt / pixels / seeds;
    }
    std::printf("mean brightness %.1f of 255, %.2f %% of the pixels at 255\n", meanOfAll,
                100.0 * burntOfAll);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

} // namespace
