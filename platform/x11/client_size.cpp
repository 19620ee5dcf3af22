#include "platform/x11/client_size.h"

#include "platform/x11/contexts.h"
#include "platform/x11/render_scale.h"
#include "platform/x11/screen_area.h"

namespace platform::x11 {

void setClientSize(WindowRecord& record, desktop::Size size)
{
    if (size == record.client)
        return;
    const double zoom = static_cast<double>(renderScale(record.client)) / renderScale(size);
    record.client = size;
    record.sizeIsToTell = true;
    fitBackBuffer(record, zoom);
}

void updateClientSize(Display* display, WindowRecord& record)
{
    const desktop::Size size = sizeOf(display, record.id);
    if (size != desktop::Size{}) // it has not been destroyed
        setClientSize(record, size);
}

} // namespace platform::x11
