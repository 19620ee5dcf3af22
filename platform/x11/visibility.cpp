#include "platform/x11/visibility.h"

#include "platform/x11/monitor_power.h"

#include <chrono>
#include <poll.h>

namespace platform::x11 {

namespace {

using namespace std::chrono;

// An ancestor that is unmapped, a host's window for one, takes ours from the screen without an
// event for it.
bool isViewable(Display* display, ::Window window)
{
    XWindowAttributes attributes{};
    return XGetWindowAttributes(display, window, &attributes) != 0 &&
           attributes.map_state == IsViewable;
}

} // namespace

bool isSeen(Display* display, WindowRecord& record)
{
    if (record.iconic || record.hidden || record.obscured)
        return false;
    const auto now = steady_clock::now();
    if (now >= record.seenUntil && isViewable(display, record.id) && monitorsAreOn(display))
        record.seenUntil = now + seconds(1);
    return now < record.seenUntil;
}

// A signal that comes before the poll is not missed for long: one that asks for the end has its
// grace period, and that of a lost connection acts in its handler.
void rest(Display* display)
{
    constexpr int quarterOfASecond = 250;
    pollfd server{ConnectionNumber(display), POLLIN, 0};
    if (XPending(display) == 0)
        poll(&server, 1, quarterOfASecond);
}

} // namespace platform::x11
