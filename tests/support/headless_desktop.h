#pragma once

#include "platform/desktop.h"

#include <string>
#include <vector>

/// Stands in for the desktop where it is linked: plays scripted messages, fails on demand, and
/// keeps every request as a line of text, such as "placeWindow(1, 0, 0, 1024, 767, topmost)".
/// Windows and contexts are numbered from 1 each.
namespace headless_desktop {

/// A desktop of 1024 x 768 with the pointer at (0, 0), on which nothing has happened yet.
void reset();

void setPointer(POINT position);

/// Happens to the newest window, or to the first one to come, after all that was played before; a
/// mouse message at `pointer` on the desktop. Message 0 is a pause: nothing waits for once.
void play(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, POINT pointer = {});

/// The same window's size becomes this one.
void resize(platform::desktop::Size client);

/// From now on requests of this name fail. They are kept all the same.
void fail(const std::string& name);

/// The requests since `reset` or the last `takeRequests`, in order. `nextMessage` is not among
/// them.
std::vector<std::string> takeRequests();

} // namespace headless_desktop
