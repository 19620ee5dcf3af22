#pragma once

#include <X11/Xlib.h>

#include <vector>

namespace platform::x11 {

/// Our windows' events while a message box is open, when the program reads none: kept in their
/// order, and given back to the connection's queue at the end of this object's life.
class DeferredEvents {
public:
    explicit DeferredEvents(Display* display) : server(display) {}
    ~DeferredEvents();
    DeferredEvents(const DeferredEvents&) = delete;
    DeferredEvents& operator=(const DeferredEvents&) = delete;

    /// Takes all that have come, and answers pings. True when a window of ours has got the
    /// keyboard's focus since the last call.
    [[nodiscard]] bool take();

private:
    void keep(const XEvent& event);

    Display* server;
    std::vector<XEvent> kept;
};

} // namespace platform::x11
