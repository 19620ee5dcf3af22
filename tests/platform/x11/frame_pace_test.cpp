#include <gtest/gtest.h> // before Xlib, which makes macros of its names

#include "platform/x11/frame_pace.h"

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

TEST(FramePace, IsTheDivisorOfTheRefreshRateNearestTo60)
{
    constexpr struct {
        double refreshRate, frameRate;
    } cases[] = {{24, 24},      {50, 50},  {59.94, 59.94},  {60, 60},  {75, 75},         {90, 45},
                 {100, 50},     {120, 60}, {143.86, 71.93}, {144, 72}, {144.05, 72.025}, {165, 55},
                 {170, 56.667}, {240, 60}, {280, 56},       {360, 60}, {1000, 58.82}};
    for (const auto& [refreshRate, frameRate] : cases) {
        const int refreshes = refreshesPerFrame(static_cast<Nanoseconds>(1e9 / refreshRate));
        EXPECT_NEAR(refreshRate / refreshes, frameRate, 0.01) << refreshRate;
    }
}
