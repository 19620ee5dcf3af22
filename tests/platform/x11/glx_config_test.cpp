#include <gtest/gtest.h> // before Xlib, which makes macros of its names

#include "platform/x11/glx_config.h"

#include <array>

using namespace platform::x11;

TEST(FormatTraits, AreSortedByWhatMattersMost)
{
    // Depth of the visual; red, green, blue, alpha; depth, stencil, accumulation; samples; slow;
    // swap copies. Each format is better than all above it by one attribute only.
    constexpr std::array<FormatTraits, 13> worstFirst = {{
        {32, 8, 8, 8, 0, 0, 0, 0, 0, false, true}, // translucent
        {0, 8, 8, 8, 0, 0, 0, 0, 0, false, true},  // no visual
        {16, 5, 6, 5, 0, 0, 0, 0, 0, false, true},
        {30, 8, 8, 8, 0, 0, 0, 0, 0, false, true},
        {24, 8, 8, 8, 0, 0, 0, 0, 0, true, true},
        {24, 5, 8, 8, 0, 0, 0, 0, 0, false, true},
        {24, 8, 8, 8, 0, 0, 0, 0, 4, false, true},
        {24, 8, 8, 8, 8, 0, 0, 0, 0, false, true},
        {24, 8, 8, 8, 0, 16, 0, 0, 0, false, true},
        {24, 8, 8, 8, 0, 0, 8, 0, 0, false, true},
        {24, 8, 8, 8, 0, 0, 0, 16, 0, false, true},
        {24, 8, 8, 8, 0, 0, 0, 0, 0, false, false},
        {24, 8, 8, 8, 0, 0, 0, 0, 0, false, true},
    }};
    EXPECT_EQ(bestFormat(std::span(worstFirst).first(2)), 2u); // neither is suitable
    for (std::size_t count = 3; count <= worstFirst.size(); ++count)
        EXPECT_EQ(bestFormat(std::span(worstFirst).first(count)), count - 1);
}
