#include "platform/held_releases.h"

#include <algorithm>

namespace platform {

namespace {

constexpr bool isPress(const MSG& message)
{
    return message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
}

constexpr bool isRelease(const MSG& message)
{
    return message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
}

} // namespace

void HeldReleases::add(const MSG& message)
{
    if (!isPress(message) && !isRelease(message)) {
        ready.push_back(message);
        return;
    }
    // The messages of one key stay in order: two taps give down, up, down, and the last up is held.
    const auto ofSameKey = [&](const MSG& release) { return release.wParam == message.wParam; };
    const auto earlier = std::find_if(held.begin(), held.end(), ofSameKey);
    if (earlier != held.end()) {
        ready.push_back(*earlier);
        held.erase(earlier);
    }
    const std::size_t key = message.wParam % pressed.size();
    if (isPress(message))
        pressed.set(key);
    (isRelease(message) && pressed.test(key) ? held : ready).push_back(message);
}

std::optional<MSG> HeldReleases::next()
{
    if (ready.empty())
        return std::nullopt;
    const MSG message = ready.front();
    ready.erase(ready.begin());
    return message;
}

// The program looks at its keys now, before it asks for the next message: from here on a release of
// any key may pass.
void HeldReleases::endBatch()
{
    pressed.reset();
    ready.insert(ready.end(), held.begin(), held.end());
    held.clear();
}

} // namespace platform
