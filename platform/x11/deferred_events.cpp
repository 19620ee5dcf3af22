#include "platform/x11/deferred_events.h"

#include "platform/win32_names.h"
#include "platform/x11/keys.h"
#include "platform/x11/window_manager.h"

#include <algorithm>
#include <array>

namespace platform::x11 {

namespace {

bool closesBox(const XEvent& event)
{
    constexpr std::array closing{VK_RETURN, VK_ESCAPE, VK_SPACE};
    return event.type == KeyPress &&
           std::find(closing.begin(), closing.end(), virtualKey(event.xkey)) != closing.end();
}

} // namespace

// XPutBackEvent puts an event before all others, so the last one goes first.
DeferredEvents::~DeferredEvents()
{
    for (auto event = kept.rbegin(); event != kept.rend(); ++event)
        XPutBackEvent(server, &*event);
}

DeferredEvents::Noticed DeferredEvents::take()
{
    Noticed noticed;
    while (XPending(server) > 0) {
        XEvent event;
        XNextEvent(server, &event);
        if (answerPing(event))
            continue;
        if (closesBox(event)) {
            noticed.closing = true;
            continue;
        }
        noticed.focused |= event.type == FocusIn && isFocusChange(event.xfocus);
        keep(event);
    }
    return noticed;
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
