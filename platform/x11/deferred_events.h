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

    /// What has happened to our windows since the last call, as far as it concerns the box.
    struct Noticed {
        bool focused = false; ///< One of them has got the keyboard focus.
        bool closing = false; ///< A key that closes boxes was pressed in one of them.
    };

    /// Takes the events that have arrived and answers pings. A press that closes the box is not
    /// kept.
    [[nodiscard]] Noticed take();

private:
    void keep(const XEvent& event);

    Display* server;
    std::vector<XEvent> kept;
};

} // namespace platform::x11
