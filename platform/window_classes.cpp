#include "platform/window_classes.h"

#include "platform/window_handles.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <strings.h>
#include <vector>

namespace platform {

namespace {

struct RegisteredClass {
    std::string name;
    WindowClass windowClass;
};

constinit std::vector<RegisteredClass> classes;
constinit ATOM nextAtom = 0xC000; // the first atom that stands for a string

auto findByName(LPCSTR name)
{
    return std::find_if(classes.begin(), classes.end(), [name](const RegisteredClass& entry) {
        return name != nullptr && strcasecmp(entry.name.c_str(), name) == 0;
    });
}

} // namespace

WindowClass findWindowClass(LPCSTR name)
{
    const auto found = findByName(name);
    return found == classes.end() ? WindowClass{} : found->windowClass;
}

} // namespace platform

ATOM RegisterClassA(const WNDCLASSA* windowClass)
{
    using namespace platform;
    if (windowClass == nullptr || windowClass->lpszClassName == nullptr ||
        windowClass->lpfnWndProc == nullptr ||
        findByName(windowClass->lpszClassName) != classes.end())
        return 0;
    const ATOM atom = nextAtom++;
    classes.push_back({windowClass->lpszClassName, {atom, windowClass->lpfnWndProc}});
    return atom;
}

// Atoms are not reused either: a window's class stays its own, even if its name is registered anew.
BOOL UnregisterClassA(LPCSTR className, HINSTANCE /*instance*/)
{
    using namespace platform;
    const auto found = findByName(className);
    if (found == classes.end() || anyHandleOf(found->windowClass.atom))
        return FALSE;
    classes.erase(found);
    return TRUE;
}

// Nothing is ever drawn from these handles, so the number that names the resource serves.
HICON LoadIconA(HINSTANCE instance, LPCSTR iconName)
{
    return instance == nullptr ? reinterpret_cast<HICON>(reinterpret_cast<std::uintptr_t>(iconName))
                               : nullptr;
}

HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR cursorName)
{
    return LoadIconA(instance, cursorName);
}
