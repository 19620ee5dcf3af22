#include "platform/x11/host_window.h"

#include "platform/x11/display.h"
#include "platform/x11/window_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace platform::x11 {

namespace {

constexpr ::Window noWindow = 0;

constinit std::array<char, 64> given{}; // the text that was given for the host's window
constinit ::Window named = noWindow;
constinit bool adopted = false;

// The number in `text`, decimal or hexadecimal with 0x; 0 when the text is anything else.
::Window windowNumber(std::string_view text)
{
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal)
        text.remove_prefix(2);
    ::Window number = noWindow;
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    const auto [stop, failure] = std::from_chars(begin, end, number, hexadecimal ? 16 : 10);
    return stop == end && failure == std::errc() ? number : noWindow;
}

void take(const char* text)
{
    std::snprintf(given.data(), given.size(), "%s", text);
    named = windowNumber(text);
}

// Exits on an error that shows that the host's window is gone, or one of ours, which are its
// children.
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

// The line names the text as it was given, since a host's user will look for it in a configuration
// file; exit and not _exit, so that standard output is flushed.
void adoptHost(Display* display)
{
    if (!hosted() || adopted)
        return;
    XErrorTrap trap(display);
    // Its size and its destruction. No input: only one client can select button presses of a
    // window, and that is the host.
    XSelectInput(display, hostWindow(), StructureNotifyMask);
    if (trap.firstError() != 0) {
        std::fprintf(stderr, "quazo: %s, given by the host, is no window\n", given.data());
        std::exit(1);
    }
    adopted = true;
    observeErrors(endWithHost);
}

// A host's windows often differ by 1, and a ball takes a fixed number of values: after numbers that
// lie close together, the balls would be the same but for their order. Multiplying by 2^32 over the
// golden ratio and taking the upper bits scatters them (Fibonacci hashing).
void varyRandomNumbers()
{
    constexpr std::uint32_t goldenRatio = 2'654'435'769;
    constexpr int unusedBits = 18; // up to 16383 values, in a quarter of a millisecond
    const std::uint32_t scattered = static_cast<std::uint32_t>(hostWindow()) * goldenRatio;
    for (std::uint32_t left = scattered >> unusedBits; left > 0; --left)
        std::rand();
}

void printInOneLine(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    std::fprintf(stderr, "%s\n", text.c_str());
}

void endIfHosted(const char* reason)
{
    if (!hosted())
        return;
    std::fprintf(stderr, "quazo: cannot draw in the host's window: %s\n", reason);
    std::exit(1);
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
