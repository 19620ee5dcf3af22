#include "platform/x11/host_window.h"

#include "platform/x11/display.h"
#include "platform/x11/window_table.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace platform::x11 {

namespace {

constexpr ::Window noWindow = 0;

constinit std::array<char, 64> given{}; // what names the host's window, as it was written
constinit ::Window named = noWindow;
constinit bool adopted = false;

// The number that the whole of `text` is, in decimal or with 0x in hexadecimal; any other text is
// no window.
::Window windowNumber(std::string_view text)
{
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal)
        text.remove_prefix(2);
    ::Window number = noWindow;
    const char* const end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(text.data(), end, number, hexadecimal ? 16 : 10);
    return stop == end && failure == std::errc() ? number : noWindow;
}

void take(const char* text)
{
    std::snprintf(given.data(), given.size(), "%s", text);
    named = windowNumber(text);
}

// An error that says that the host's window is no more, or one of ours, which go with it.
void endWithHost(const XErrorEvent& error)
{
    const bool noSuchWindow = error.error_code == BadWindow || error.error_code == BadDrawable;
    if (adopted && noSuchWindow &&
        (error.resourceid == hostWindow() || findRecord(error.resourceid) != nullptr))
        _exit(0);
}

void resizeWindows(Display* display, desktop::Size size)
{
    for (const WindowRecord& record : windowRecords())
        if (record.id != 0)
            XResizeWindow(display, record.id, static_cast<unsigned int>(size.width),
                          static_cast<unsigned int>(size.height));
}

} // namespace

void chooseHostWindow(int argumentCount, const char* const* arguments)
{
    given.fill('\0');
    named = noWindow;
    for (int i = 1; i < argumentCount && named == noWindow; ++i)
        if (std::string_view(arguments[i]) == "--window-id")
            take(i + 1 < argumentCount && *arguments[i + 1] != '\0' ? arguments[i + 1]
                                                                    : "an empty --window-id");
    const char* const fromEnvironment = std::getenv("XSCREENSAVER_WINDOW");
    if (named == noWindow && fromEnvironment != nullptr && *fromEnvironment != '\0')
        take(fromEnvironment);
}

bool hosted()
{
    return given.front() != '\0';
}

::Window hostWindow()
{
    return named;
}

void adoptHost(Display* display)
{
    if (!hosted() || adopted)
        return;
    XErrorTrap trap(display);
    // Its size and its end. Only these: of most input there can be one listener, and it is the
    // host.
    XSelectInput(display, hostWindow(), StructureNotifyMask);
    if (trap.firstError() != 0) {
        std::fprintf(stderr, "quazo: %s, given by the host, is no window\n", given.data());
        std::exit(1);
    }
    adopted = true;
    observeErrors(endWithHost);
}

void releaseHost()
{
    adopted = false;
}

bool followHost(const XEvent& event)
{
    if (!adopted || event.xany.window != hostWindow())
        return false;
    if (event.type == DestroyNotify)
        _exit(0);
    if (event.type == ConfigureNotify)
        resizeWindows(event.xany.display, {event.xconfigure.width, event.xconfigure.height});
    return true;
}

} // namespace platform::x11
