#include "platform/win32.h"

namespace platform {

namespace {

// Shows the pointer for its lifetime, however often it was hidden.
class VisiblePointer {
public:
    VisiblePointer()
    {
        do
            ++shown;
        while (ShowCursor(TRUE) < 0);
    }
    ~VisiblePointer()
    {
        for (; shown > 0; --shown)
            ShowCursor(FALSE);
    }
    VisiblePointer(const VisiblePointer&) = delete;
    VisiblePointer& operator=(const VisiblePointer&) = delete;

private:
    int shown = 0;
};

} // namespace

// A box is always above its owner, which gets no input while it is open: otherwise a move of the
// mouse over our window would post WM_QUIT, which closes the box.
int shell_calls::messageBox(HWND owner, LPCSTR text, LPCSTR caption, UINT type)
{
    if (owner == nullptr)
        owner = WindowFromDC(wglGetCurrentDC());
    const VisiblePointer pointer;
    return (::MessageBoxA)(owner, text, caption, type | MB_TOPMOST | MB_SETFOREGROUND);
}

} // namespace platform
