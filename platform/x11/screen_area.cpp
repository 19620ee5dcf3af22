#include "platform/x11/screen_area.h"

#include "platform/x11/randr.h"

#include <algorithm>
#include <memory>
#include <span>

namespace platform::x11 {

desktop::Size sizeOf(Display* display, ::Window window)
{
    ::Window root = 0;
    int x = 0, y = 0;
    unsigned int width = 0, height = 0, border = 0, depth = 0;
    XGetGeometry(display, window, &root, &x, &y, &width, &height, &border, &depth);
    return {static_cast<int>(width), static_cast<int>(height)};
}

ScreenArea areaOf(Display* display, ::Window window)
{
    return {window, {0, 0}, sizeOf(display, window)};
}

// RandR 1.5's monitors, not its outputs: a monitor may be several outputs that make one picture, or
// a part of one that the user has split. Without RandR the whole screen counts as one monitor.
std::vector<ScreenArea> monitors(Display* display)
{
    constexpr int knowsMonitors = 5;
    const ::Window root = DefaultRootWindow(display);
    if (!hasRandr(display, knowsMonitors))
        return {areaOf(display, root)};
    int count = 0;
    const std::unique_ptr<XRRMonitorInfo, decltype(&XRRFreeMonitors)> list(
        XRRGetMonitors(display, root, True, &count), &XRRFreeMonitors);
    if (list == nullptr || count <= 0)
        return {areaOf(display, root)};
    // Where no monitor is the primary one, the first one is.
    const std::span known(list.get(), static_cast<std::size_t>(count));
    std::stable_partition(known.begin(), known.end(),
                          [](const XRRMonitorInfo& monitor) { return monitor.primary != 0; });
    std::vector<ScreenArea> areas;
    for (const XRRMonitorInfo& monitor : known)
        areas.push_back({root, {monitor.x, monitor.y}, {monitor.width, monitor.height}});
    return areas;
}

} // namespace platform::x11
