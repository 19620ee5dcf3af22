#include "platform/message_queue.h"

#include "platform/desktop.h"
#include "platform/held_releases.h"
#include "platform/signals.h"
#include "platform/window_handles.h"
#include "platform/windows.h"

#include <optional>
#include <utility>

namespace platform {

namespace {

constinit std::optional<MSG> waiting; // looked at, but not removed
constinit HeldReleases heldReleases;
constinit std::optional<int> quitCode;
constinit bool closeAsked = false;             // the WM_CLOSE of a signal was returned
constinit const POINT* handledPlace = nullptr; // of the mouse message being dispatched

// A signal becomes one WM_CLOSE for the newest window, whose procedure decides what to do about it.
std::optional<MSG> closeBySignal()
{
    const HWND window = newestHandle();
    if (closeAsked || window == nullptr || !endRequested())
        return std::nullopt;
    closeAsked = true;
    return MSG{window, WM_CLOSE, 0, 0, 0, {}};
}

// Messages that Win32 sends and does not queue go to the procedure at once. False for the others.
bool sentAtOnce(HWND window, const desktop::Message& message)
{
    switch (message.message) {
    case WM_SIZE:
        tellSize(window, message.client);
        return true;
    case WM_ACTIVATE:
        sendMessage(window, message.message, message.wParam, message.lParam);
        return true;
    default:
        return false;
    }
}

// Takes one message from the desktop; false when none waits there.
bool takeFromDesktop()
{
    desktop::Message message;
    if (!desktop::nextMessage(message))
        return false;
    const HWND window = handleOf(message.window);
    const bool gone = window == nullptr; // it has been destroyed since
    if (!gone && !sentAtOnce(window, message))
        heldReleases.add(
            {window, message.message, message.wParam, message.lParam, 0, message.pointer});
    return true;
}

std::optional<MSG> nextFromDesktop()
{
    for (;;) {
        if (std::optional<MSG> message = heldReleases.next())
            return message;
        if (takeFromDesktop())
            continue;
        heldReleases.endBatch();
        // Before a quit the held releases are returned too: there will be no other batch.
        return quitCode ? heldReleases.next() : std::nullopt;
    }
}

// WM_QUIT comes once, when no other message waits.
std::optional<MSG> quit()
{
    const auto code = std::exchange(quitCode, std::nullopt);
    if (!code)
        return std::nullopt;
    return MSG{nullptr, WM_QUIT, static_cast<WPARAM>(*code), 0, 0, {}};
}

// In the order of urgency: a request to end must not wait behind a flood of mouse moves.
std::optional<MSG> nextMessage()
{
    for (const auto source : {closeBySignal, nextFromDesktop, quit})
        if (std::optional<MSG> message = source())
            return message;
    return std::nullopt;
}

constexpr bool isMouseMessage(UINT message)
{
    return message >= WM_MOUSEMOVE && message <= WM_MBUTTONUP;
}

} // namespace

bool pointerOfHandledMessage(POINT& result)
{
    if (handledPlace == nullptr)
        return false;
    result = *handledPlace;
    return true;
}

} // namespace platform

using namespace platform;

BOOL PeekMessageA(MSG* message, HWND /*window*/, UINT /*first*/, UINT /*last*/, UINT remove)
{
    if (message == nullptr)
        return FALSE;
    if (!waiting)
        waiting = nextMessage();
    if (!waiting)
        return FALSE;
    *message = *waiting;
    if ((remove & PM_REMOVE) != 0)
        waiting.reset();
    return TRUE;
}

// A procedure may dispatch messages itself, so the place of the outer one is restored.
LRESULT DispatchMessageA(const MSG* message)
{
    if (message == nullptr)
        return 0;
    const POINT* place = isMouseMessage(message->message) ? &message->pt : nullptr;
    const POINT* outerPlace = std::exchange(handledPlace, place);
    const LRESULT result =
        sendMessage(message->hwnd, message->message, message->wParam, message->lParam);
    handledPlace = outerPlace;
    return result;
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM /*lParam*/)
{
    if (message == WM_SYSKEYDOWN && wParam == VK_F4)
        sendMessage(window, WM_CLOSE, 0, 0);
    return 0;
}

void PostQuitMessage(int exitCode)
{
    quitCode = exitCode;
}
