#include <gtest/gtest.h> // before Xlib, which makes macros of its names

#include "platform/x11/frame_pace.h"

using namespace platform::x11;

TEST(FramePace, KeepsDueTimesOnOneGrid)
{
    constexpr Nanoseconds period = 10;
    struct Case {
        const char* what;
        Nanoseconds last, now, due;
    };
    for (const Case& frame :
         {Case{"early: wait for the rest of the period", 100, 103, 110},
          Case{"on time", 100, 109, 110}, Case{"just due: now", 100, 110, 110},
          Case{"late: now, and the next one on the old grid", 100, 117, 110},
          Case{"after a stall: one frame now, not one for each missed", 100, 1236, 1230},
          Case{"the frame after that waits again", 1230, 1237, 1240},
          Case{"the first frame of all does not wait", 0, 12345, 12340}})
        EXPECT_EQ(nextDueTime(frame.last, frame.now, period), frame.due) << frame.what;
}

TEST(FramePace, HasThePeriodOfTheMode)
{
    struct Case {
        const char* what;
        unsigned long dotClock;
        unsigned int hTotal, vTotal;
        XRRModeFlags flags;
        Nanoseconds period;
    };
    constexpr Nanoseconds usual = 16'666'666;
    for (const Case& known :
         {Case{"1080p at 60 Hz", 148'500'000, 2200, 1125, 0, usual},
          Case{"1080i at 60 half pictures", 74'250'000, 2200, 1125, RR_Interlace, usual},
          Case{"doubled lines", 25'200'000, 800, 262, RR_DoubleScan, 16'634'920},
          Case{"144 Hz", 346'500'000, 2080, 1157, 0, 6'945'339},
          Case{"no clock", 0, 2200, 1125, 0, usual}, Case{"no size", 148'500'000, 0, 0, 0, usual},
          Case{"a virtual monitor's 1 Hz", 2'475'000, 2200, 1125, 0, usual}}) {
        XRRModeInfo mode{};
        mode.dotClock = known.dotClock;
        mode.hTotal = known.hTotal;
        mode.vTotal = known.vTotal;
        mode.modeFlags = known.flags;
        EXPECT_EQ(framePeriod(mode), known.period) << known.what;
    }
}
