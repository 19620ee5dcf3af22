#include "platform/x11/monitor_power.h"

// In a file of its own: one of the names that come with this header is BOOL, another type than that
// of Win32.
#include <X11/extensions/dpms.h>

namespace platform::x11 {

bool monitorsAreOn(Display* display)
{
    int event = 0, error = 0;
    CARD16 level = DPMSModeOn;
    BOOL enabled = False;
    return DPMSQueryExtension(display, &event, &error) == False ||
           DPMSInfo(display, &level, &enabled) == False || level == DPMSModeOn;
}

} // namespace platform::x11
