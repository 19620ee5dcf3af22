#include "platform/x11/refresh_period.h"

#include "platform/x11/randr.h"

#include <memory>
#include <span>

namespace platform::x11 {

namespace {

constexpr Nanoseconds second = 1'000'000'000;
constexpr Nanoseconds shortestPeriod = second / 1000, longestPeriod = second / 20;

using Controller = std::unique_ptr<XRRCrtcInfo, decltype(&XRRFreeCrtcInfo)>;

bool contains(const XRRCrtcInfo& monitor, int x, int y)
{
    return monitor.x <= x && x < monitor.x + static_cast<int>(monitor.width) && monitor.y <= y &&
           y < monitor.y + static_cast<int>(monitor.height);
}

// The mode of the monitor that shows the middle of the area; 0 when none does.
RRMode modeOf(Display* display, const ScreenArea& area, XRRScreenResources& resources)
{
    int x = area.corner.x + area.size.width / 2;
    int y = area.corner.y + area.size.height / 2;
    ::Window child = 0;
    XTranslateCoordinates(display, area.parent, DefaultRootWindow(display), x, y, &x, &y, &child);
    for (const RRCrtc id : std::span(resources.crtcs, static_cast<std::size_t>(resources.ncrtc))) {
        const Controller crtc(XRRGetCrtcInfo(display, &resources, id), &XRRFreeCrtcInfo);
        if (crtc && crtc->mode != 0 && contains(*crtc, x, y))
            return crtc->mode;
    }
    return 0;
}

} // namespace

// The dot clock counts pixels per second, blanking included, so a frame takes
//
//     hTotal * vTotal / dotClock
//
// seconds. With double scan each line is sent twice.
Nanoseconds refreshPeriod(const XRRModeInfo& mode)
{
    auto dots = static_cast<Nanoseconds>(mode.hTotal) * mode.vTotal;
    if ((mode.modeFlags & RR_DoubleScan) != 0)
        dots *= 2;
    if ((mode.modeFlags & RR_Interlace) != 0)
        dots /= 2; // each field is shown as a frame
    if (mode.dotClock == 0)
        return usualFramePeriod;
    const Nanoseconds period = dots * second / static_cast<Nanoseconds>(mode.dotClock);
    return period < shortestPeriod || period > longestPeriod ? usualFramePeriod : period;
}

Nanoseconds refreshPeriod(Display* display, const ScreenArea& area)
{
    const ScreenResources resources = screenResources(display);
    if (!resources)
        return usualFramePeriod;
    const RRMode current = modeOf(display, area, *resources);
    for (const XRRModeInfo& mode :
         std::span(resources->modes, static_cast<std::size_t>(resources->nmode)))
        if (mode.id == current)
            return refreshPeriod(mode);
    return usualFramePeriod;
}

} // namespace platform::x11
