#include <gtest/gtest.h> // before Xlib, which makes macros of its names

#include "platform/x11/refresh_period.h"

using namespace platform::x11;
using platform::Nanoseconds;

TEST(FramePace, HasThePeriodOfTheMode)
{
    const auto period = [](unsigned long dotClock, unsigned width, unsigned height,
                           XRRModeFlags flags = 0) {
        XRRModeInfo mode{};
        mode.dotClock = dotClock;
        mode.hTotal = width;
        mode.vTotal = height;
        mode.modeFlags = flags;
        return refreshPeriod(mode);
    };
    constexpr Nanoseconds usual = 16'666'666;
    EXPECT_EQ(period(346'500'000, 2080, 1157), 6'945'339);
    EXPECT_EQ(period(74'250'000, 2200, 1125, RR_Interlace), usual);
    EXPECT_EQ(period(25'200'000, 800, 262, RR_DoubleScan), 16'634'920);
    EXPECT_EQ(period(0, 2200, 1125), usual); // of no known rate, or out of range
    EXPECT_EQ(period(148'500'000, 0, 0), usual);
    EXPECT_EQ(period(2'475'000, 2200, 1125), usual);
}
