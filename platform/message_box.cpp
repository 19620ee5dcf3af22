#include "platform/desktop.h"
#include "platform/signals.h"

int MessageBoxA(HWND /*owner*/, LPCSTR text, LPCSTR caption, UINT type)
{
    platform::desktop::messageBox(text == nullptr ? "" : text,
                                  caption == nullptr ? "Error" : caption, type,
                                  platform::endSignalDescriptor());
    return IDOK;
}
