#pragma once

#include "platform/desktop.h"

#include <cstddef>
#include <string>
#include <vector>

/// A port without a desktop, for tests to link: it plays scripted messages, fails on demand, and
/// records every call as a line of text, such as "placeWindow(1, 0, 0, 1024, 767, topmost)".
/// Windows and contexts are numbered from 1.
namespace headless_desktop {

/// Starts again with a desktop of 1024 x 768, the pointer at (0, 0), no messages and no records.
void reset();

void setPointer(POINT position);

/// Appends a message for the newest window, or for the first one that will be created; `pointer` is
/// the position of a mouse message. Message 0 is a pause: once, no message waits.
void play(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, POINT pointer = {});

/// Appends a change of that window's size.
void resize(platform::desktop::Size client);

/// From now on calls of this function fail. They are still recorded.
void fail(const std::string& name);

/// The calls since `reset` or the last `takeRequests`, in order, without those of `nextMessage`.
std::vector<std::string> takeRequests();

/// The `ordinal`-th request after `reset` fails as well; 1 is the first.
void failAt(std::size_t ordinal);

} // namespace headless_desktop
