#include "platform/x11/deferred_events.h"

#include "platform/x11/window_manager.h"

namespace platform::x11 {

// An event that is put back goes before all that wait.
DeferredEvents::~DeferredEvents()
{
    for (auto event = kept.rbegin(); event != kept.rend(); ++event)
        XPutBackEvent(server, &*event);
}

bool DeferredEvents::take()
{
    bool focused = false;
    while (XPending(server) > 0) {
        XEvent event;
        XNextEvent(server, &event);
        if (answerPing(event))
            continue;
        focused |= event.type == FocusIn && isFocusChange(event.xfocus);
        keep(event);
    }
    return focused;
}

// Of moves in a row the last is enough: a mouse that goes on for an hour must not fill the memory.
void DeferredEvents::keep(const XEvent& event)
{
    if (event.type == MotionNotify && !kept.empty() && kept.back().type == MotionNotify)
        kept.pop_back();
    kept.push_back(event);
}

} // namespace platform::x11
