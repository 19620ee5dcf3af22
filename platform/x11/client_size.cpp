#include "platform/x11/client_size.h"

#include "platform/x11/contexts.h"
#include "platform/x11/desktop_area.h"

namespace platform::x11 {

void setClientSize(WindowRecord& record, desktop::Size size)
{
    if (size == record.client)
        return;
    record.client = size;
    record.sizeIsToTell = true;
    fitBackBuffer(record);
}

void updateClientSize(Display* display, WindowRecord& record)
{
    const desktop::Size size = sizeOf(display, record.id);
    if (size != desktop::Size{}) // it has not been destroyed
        setClientSize(record, size);
}

} // namespace platform::x11
