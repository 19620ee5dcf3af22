#include <gtest/gtest.h> // before Xlib, which makes macros of its names

#include "platform/x11/glx_config.h"

#include <array>
#include <vector>

using namespace platform::x11;

namespace {

constexpr FormatTraits plain{.visualDepth = 24, .red = 8, .green = 8, .blue = 8};

FormatTraits with(void (*change)(FormatTraits&))
{
    FormatTraits format = plain;
    change(format);
    return format;
}

} // namespace

TEST(FormatTraits, AreSortedFromTheBestToTheWorst)
{
    // Each one is worse than all before it, though it has all the lesser virtues.
    const std::vector<FormatTraits> sorted = {
        with([](FormatTraits& format) { format.swapCopies = true; }),
        plain,
        with([](FormatTraits& format) { format.accumulation = 16, format.swapCopies = true; }),
        with([](FormatTraits& format) { format.stencil = 8, format.swapCopies = true; }),
        with([](FormatTraits& format) { format.depth = 16, format.swapCopies = true; }),
        with([](FormatTraits& format) { format.depth = 24, format.swapCopies = true; }),
        with([](FormatTraits& format) { format.alpha = 8, format.swapCopies = true; }),
        with([](FormatTraits& format) { format.samples = 4, format.swapCopies = true; }),
        with([](FormatTraits& format) { format.red = 5, format.swapCopies = true; }),
        with([](FormatTraits& format) { format.slow = true, format.swapCopies = true; }),
        with([](FormatTraits& format) { format.visualDepth = 30, format.swapCopies = true; }),
    };
    for (std::size_t best = 0; best < sorted.size(); ++best) {
        const std::vector<FormatTraits> backwards(
            sorted.rbegin(), sorted.rend() - static_cast<std::ptrdiff_t>(best));
        EXPECT_EQ(bestFormat(backwards), backwards.size() - 1) << best;
    }
}

TEST(FormatTraits, NeverTakesAVisualWithAlphaOrNone)
{
    const FormatTraits seeThrough = with([](FormatTraits& format) { format.visualDepth = 32; });
    const FormatTraits windowless = with([](FormatTraits& format) { format.visualDepth = 0; });
    const FormatTraits poor{.visualDepth = 16, .red = 5, .green = 6, .blue = 5, .slow = true};
    EXPECT_EQ(bestFormat(std::array{seeThrough, windowless}), 2u);
    EXPECT_EQ(bestFormat(std::array{seeThrough, windowless, poor}), 2u);
    EXPECT_EQ(bestFormat({}), 0u);
}
