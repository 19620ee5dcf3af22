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

// While a mouse message is handled this is the place it carried, not the place of this moment:
// the pointer may be far ahead of the messages, and a path that is added up from them would lose
// its corners and count the way to its end at once.
BOOL GetCursorPos(POINT* position)
{
    if (position == nullptr)
        return FALSE;
    return pointerOfHandledMessage(*position) || desktop::pointerPosition(*position);
}
