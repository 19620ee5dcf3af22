#include "platform/held_releases.h"
#include "platform/win32.h"
#include "platform/windows/wgl_back_buffer.h"

#include <optional>

namespace platform {

namespace {

constinit HeldReleases heldReleases;

// Takes one message from the system's queue; false when it is empty.
bool takeFromSystem(HWND window, UINT first, UINT last)
{
    MSG message;
    if ((::PeekMessageA)(&message, window, first, last, PM_REMOVE) == FALSE)
        return false;
    // It comes when no other message waits: there will be no other batch.
    if (message.message == WM_QUIT)
        heldReleases.endBatch();
    heldReleases.add(message);
    return true;
}

} // namespace

BOOL shell_calls::peekMessage(MSG* message, HWND window, UINT first, UINT last, UINT remove)
{
    if ((remove & PM_REMOVE) == 0)
        return (::PeekMessageA)(message, window, first, last, remove);
    do {
        if (const std::optional<MSG> next = heldReleases.next()) {
            *message = *next;
            return TRUE;
        }
    } while (takeFromSystem(window, first, last));
    heldReleases.endBatch();
    fitBackBufferToWindow();
    return FALSE;
}

} // namespace platform
