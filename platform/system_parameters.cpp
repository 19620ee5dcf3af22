#include "platform/desktop.h"

BOOL SystemParametersInfoA(UINT action, UINT parameter, LPVOID /*buffer*/, UINT /*flags*/)
{
    if (action != SPI_SETSCREENSAVERRUNNING)
        return FALSE;
    platform::desktop::setScreenSaverRunning(parameter != 0);
    return TRUE;
}

// The border width of Windows' own windows; ours have none.
int GetSystemMetrics(int index)
{
    return index == SM_CXBORDER || index == SM_CYBORDER ? 1 : 0;
}
