#include "platform/x11/randr.h"

namespace platform::x11 {

int firstRandrEvent(Display* display)
{
    int event = 0, error = 0;
    return XRRQueryExtension(display, &event, &error) != 0 ? event : -1;
}

bool hasRandr(Display* display, int minor)
{
    int major = 0, known = 0;
    return firstRandrEvent(display) >= 0 && XRRQueryVersion(display, &major, &known) != 0 &&
           (major > 1 || known >= minor);
}

ScreenResources screenResources(Display* display)
{
    constexpr int withoutProbing = 3;
    return {hasRandr(display, withoutProbing)
                ? XRRGetScreenResourcesCurrent(display, DefaultRootWindow(display))
                : nullptr,
            &XRRFreeScreenResources};
}

} // namespace platform::x11
