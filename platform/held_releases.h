#pragma once

#include "platform/win32_names.h"

#include <bitset>
#include <optional>
#include <vector>

namespace platform {

/// Orders the messages between the desktop and the program so that no tap of a key is too short to
/// be seen. A program that looks at its keys once a frame, when no message waits any more, would
/// miss a key that goes down and up within one batch of messages. So such a release waits until
/// the batch is over, or until the next message of the same key; nothing else waits with it.
class HeldReleases {
public:
    /// Takes a message from the desktop.
    void add(const MSG& message);

    /// The next message for the program, if one is ready.
    [[nodiscard]] std::optional<MSG> next();

    /// Nothing waits on the desktop: the releases held so far are ready for the next batch.
    void endBatch();

private:
    std::bitset<256> pressed; // in this batch, by virtual key
    std::vector<MSG> held;    // at most one release for each key
    std::vector<MSG> ready;
};

} // namespace platform
