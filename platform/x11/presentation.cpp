#include "platform/x11/presentation.h"

#include "platform/frame_clock.h"
#include "platform/x11/contexts.h"
#include "platform/x11/frame_pace.h"
#include "platform/x11/swap_interval.h"

namespace platform::x11 {

namespace {

constinit FrameClock frameClock;

} // namespace

void setPace(Display* display, ::Window window, const DesktopArea& desktop)
{
    const Nanoseconds period = framePeriod(display, desktop);
    // If swaps wait for the refresh, our clock runs slightly fast: were it the slower of the two, a
    // frame would miss its refresh from time to time.
    const Nanoseconds lead = setSwapInterval(display, window) ? period / 1000 : 0;
    frameClock.setPeriod(period - lead);
}

void presentFrame(Display* display, const WindowRecord& record)
{
    presentBackBuffer(record);
    frameClock.awaitNextFrame();
    glXSwapBuffers(display, record.id);
}

} // namespace platform::x11
