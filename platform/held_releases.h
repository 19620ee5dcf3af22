#pragma once

#include "platform/win32.h"

#include <bitset>
#include <optional>
#include <vector>

namespace platform {

/// Passes messages on, and delays the release of a key that was pressed in the same batch of
/// messages. The program looks at the state of its keys once per frame, after it has handled all
/// waiting messages; a tap that begins and ends within one batch would never be seen. So its
/// release is held until the batch is over, or until the next message of the same key. All other
/// messages pass at once.
class HeldReleases {
public:
    /// Adds a message that has come.
    void add(const MSG& message);

    /// Takes the next message that may be passed on, if there is one.
    [[nodiscard]] std::optional<MSG> next();

    /// To be called when no message waits any more: the held releases may be passed on.
    void endBatch();

private:
    std::bitset<256> pressed; // in this batch, by virtual key
    std::vector<MSG> held;    // at most one release for each key
    std::vector<MSG> ready;
};

} // namespace platform
