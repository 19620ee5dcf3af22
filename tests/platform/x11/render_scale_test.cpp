#include <gtest/gtest.h> // before Xlib, which makes macros of its names

#include "platform/x11/render_scale.h"

#include <algorithm>
#include <string>

using namespace platform::x11;

TEST(RenderScale, GrowsWithTheWindowAndShrinksWithTheCores)
{
    constexpr struct {
        platform::desktop::Size window;
        unsigned cores;
        int scale;
    } cases[] = {{{640, 360}, 2, 1},     {{800, 600}, 2, 1},    {{1280, 720}, 2, 2},
                 {{1920, 1080}, 2, 3},   {{2560, 1440}, 2, 4},  {{3840, 2160}, 2, 8},
                 {{32767, 32767}, 2, 8}, {{1, 1}, 1, 1},        {{1280, 720}, 1, 3},
                 {{1920, 1080}, 8, 2},   {{1920, 1080}, 32, 1}, {{1920, 1080}, 0, 3}};
    for (const auto& [window, cores, scale] : cases)
        EXPECT_EQ(softwareScale(window, cores), scale) << window.width << " " << cores;
}

TEST(RenderScale, IsGivenByANumberFrom1To8)
{
    EXPECT_EQ(givenScale(nullptr), 0);
    EXPECT_EQ(givenScale(""), 0);
    EXPECT_EQ(givenScale("1"), 1);
    EXPECT_EQ(givenScale("8"), 8);
    testing::internal::CaptureStderr();
    for (const char* const bad : {"0", "9", "-1", "2x", "12", " 2", "\xff", "one"})
        EXPECT_EQ(givenScale(bad), 0) << bad;
    const std::string lines = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(lines.starts_with("quazo: QUAZO_RENDER_SCALE is no number from 1 to 8: 0\n"));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 8);
}
