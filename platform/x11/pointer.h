#pragma once

namespace platform::x11 {

/// Shows the pointer over our windows for the time of its life, hidden or not.
class VisiblePointer {
public:
    VisiblePointer();
    ~VisiblePointer();
    VisiblePointer(const VisiblePointer&) = delete;
    VisiblePointer& operator=(const VisiblePointer&) = delete;
};

} // namespace platform::x11
