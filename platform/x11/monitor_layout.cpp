#include "platform/x11/monitor_layout.h"

#include "platform/x11/curtains.h"
#include "platform/x11/host_window.h"
#include "platform/x11/presentation.h"
#include "platform/x11/randr.h"
#include "platform/x11/window_manager.h"

#include <algorithm>

namespace platform::x11 {

namespace {

// Monitors that the user defines, as parts of others, change the root window's configuration only.
bool isMonitorChange(const XEvent& event)
{
    Display* const display = event.xany.display;
    if (event.type == ConfigureNotify)
        return event.xconfigure.window == DefaultRootWindow(display);
    const int first = firstRandrEvent(display);
    return first >= 0 && event.type == first + RRScreenChangeNotify;
}

} // namespace

void layWindow(Display* display, WindowRecord& record, const ScreenArea& desktop)
{
    const RECT& margins = record.margins;
    const int width = desktop.size.width - static_cast<int>(margins.left + margins.right);
    const int height = desktop.size.height - static_cast<int>(margins.top + margins.bottom);
    XMoveResizeWindow(display, record.id, desktop.corner.x + margins.left,
                      desktop.corner.y + margins.top, static_cast<unsigned int>(std::max(1, width)),
                      static_cast<unsigned int>(std::max(1, height)));
}

void watchMonitors(Display* display)
{
    if (hosted())
        return;
    const ::Window root = DefaultRootWindow(display);
    XSelectInput(display, root, StructureNotifyMask);
    if (firstRandrEvent(display) >= 0)
        XRRSelectInput(display, root, RRScreenChangeNotifyMask);
}

void adaptToMonitor(Display* display, const WindowRecord& record)
{
    setPace(display, record.id, areaOf(display, record.id));
    layCurtains(display, record);
}

// A manager lays the windows that it handles itself, and tells of it by a ConfigureNotify.
bool followMonitors(const XEvent& event)
{
    if (!isMonitorChange(event))
        return false;
    Display* const display = event.xany.display;
    for (WindowRecord& record : windowRecords()) {
        if (record.id == 0 || !record.shown)
            continue;
        record.pointerJumped = true;
        if (!managerRuns(display))
            layWindow(display, record, monitors(display).front());
        adaptToMonitor(display, record);
    }
    return true;
}

} // namespace platform::x11
