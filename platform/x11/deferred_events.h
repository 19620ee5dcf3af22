#pragma once

#include <X11/Xlib.h>

#include <vector>

namespace platform::x11 {

/// Takes the events of our windows while a message box is open and the program reads none. They are
/// kept in order; the destructor puts them back into the connection's queue.
class DeferredEvents {
public:
    explicit DeferredEvents(Display* display) : server(display) {}
    ~DeferredEvents();
    DeferredEvents(const DeferredEvents&) = delete;
    DeferredEvents& operator=(const DeferredEvents&) = delete;

    /// Takes the events that have arrived and answers pings. True when one of our windows has got
    /// the keyboard focus since the last call.
    [[nodiscard]] bool take();

private:
    void keep(const XEvent& event);

    Display* server;
    std::vector<XEvent> kept;
};

} // namespace platform::x11
