#include "platform/x11/deferred_events.h"

#include "platform/x11/window_manager.h"

namespace platform::x11 {

// XPutBackEvent puts an event before all others, so the last one goes first.
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

// Consecutive moves become one, as they do on Windows: otherwise memory would grow as long as the
// mouse moves.
void DeferredEvents::keep(const XEvent& event)
{
    if (event.type == MotionNotify && !kept.empty() && kept.back().type == MotionNotify)
        kept.pop_back();
    kept.push_back(event);
}

} // namespace platform::x11
