#pragma once

#include "platform/win32.h"

#include <cstdint>
#include <cstdlib>

/// The total distance that the cursor has moved, in pixels: the sum of |dx| + |dy| over all moves
/// (city-block distance). It only grows.
class CursorTravel {
public:
    /// Adds the move to `position`, on the screen. True once the total exceeds 100 pixels. The
    /// first position is where counting starts, since the cursor may be anywhere when the window
    /// appears.
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
