#pragma once

#include "platform/x11/window_table.h"

/// The pointer over our windows; elsewhere on the screen it is never hidden.
namespace platform::x11 {

/// Hides the pointer while it is over the window, or shows it again.
void hidePointer(Display* display, WindowRecord& record, bool hidden);

/// Shows the pointer over all our windows for the time of its life, hidden or not.
class VisiblePointer {
public:
    explicit VisiblePointer(Display* display);
    ~VisiblePointer();
    VisiblePointer(const VisiblePointer&) = delete;
    VisiblePointer& operator=(const VisiblePointer&) = delete;

private:
    Display* server;
};

} // namespace platform::x11
