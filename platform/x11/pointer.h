#pragma once

#include "platform/x11/window_table.h"

/// The visibility of the pointer over our windows. Elsewhere on the screen it is never hidden.
namespace platform::x11 {

/// Gives the window a cursor that shows nothing.
void setEmptyCursor(Display* display, ::Window window);

/// Hides the pointer while it is over the window, or shows it again.
void hidePointer(Display* display, WindowRecord& record, bool hidden);

/// Makes the pointer visible over all our windows while this object exists.
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
