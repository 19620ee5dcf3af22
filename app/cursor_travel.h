#pragma once

#include "platform/win32.h"

#include <cstdint>
#include <cstdlib>

/// How far the cursor has gone in all, in pixels along x and along y. Small ways add up: there is
/// no way back to 0.
class CursorTravel {
public:
    /// Adds the way to `position`; true once it has gone too far. The first position only marks
    /// the start: the mouse may lie anywhere when the window appears.
    [[nodiscard]] bool moveTo(POINT position)
    {
        if (started)
            travelled += distance(last.x, position.x) + distance(last.y, position.y);
        last = position;
        started = true;
        return travelled > limit;
    }

private:
    static constexpr std::uint32_t limit = 100; // pixels

    static std::uint32_t distance(LONG from, LONG to)
    {
        return static_cast<std::uint32_t>(std::abs(from - to));
    }

    bool started = false;
    POINT last{};
    std::uint32_t travelled = 0;
};
