#include "platform/desktop.h"
#include "platform/message_queue.h"
#include "platform/window_handles.h"

using namespace platform;

int ShowCursor(BOOL show)
{
    static constinit int displayCount = 0;
    displayCount += show != FALSE ? 1 : -1;
    showPointerOverWindows(displayCount >= 0);
    return displayCount;
}

// While a mouse message is dispatched this is the position in the message. The pointer's position
// of this moment may be many messages ahead: a path summed up from it would jump to its end and
// lose its corners.
BOOL GetCursorPos(POINT* position)
{
    if (position == nullptr)
        return FALSE;
    return pointerOfHandledMessage(*position) || desktop::pointerPosition(*position);
}
