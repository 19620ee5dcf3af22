#include "platform/x11/presentation.h"

#include "platform/frame_clock.h"
#include "platform/x11/contexts.h"
#include "platform/x11/refresh_period.h"
#include "platform/x11/swap_interval.h"
#include "platform/x11/visibility.h"

namespace platform::x11 {

namespace {

constinit FrameClock frameClock;

} // namespace

void setPace(Display* display, ::Window window, const ScreenArea& area)
{
    const Nanoseconds refresh = refreshPeriod(display, area);
    const int refreshes = refreshesPerFrame(refresh);
    const Nanoseconds period = refreshes * refresh;
    // If swaps wait for the refresh, our clock runs slightly fast: were it the slower of the two, a
    // frame would miss its refresh from time to time.
    const Nanoseconds lead = setSwapInterval(display, window, refreshes) ? period / 1000 : 0;
    frameClock.setPeriod(period - lead);
}

// Events that end a rest may come in any number, so the clock limits the pace then too.
void presentFrame(Display* display, WindowRecord& record)
{
    const bool seen = isSeen(display, record);
    if (seen)
        takeFrame(record);
    else
        rest(display);
    frameClock.awaitNextFrame();
    if (seen)
        showFrame(record);
}

} // namespace platform::x11
