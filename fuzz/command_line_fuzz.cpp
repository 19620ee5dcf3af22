// A command line, its arguments separated by line feeds: the mode, and the host's window. A number
// that is taken is the same when it is given again, in decimal and with 0x.

#include "app/command_line.h"
#include "fuzz/harness.h"
#include "platform/x11/host_window.h"

#include <cstdio>
#include <vector>

namespace {

::Window windowOf(const char* number)
{
    const char* const arguments[] = {"quazo", "--window-id", number};
    platform::x11::chooseHostWindow(3, arguments);
    return platform::x11::hostWindow();
}

} // namespace

void tryInput(std::span<const std::uint8_t> input)
{
    std::string line(input.begin(), input.end());
    static_cast<void>(modeFor(line.c_str()));

    std::vector<const char*> arguments{"quazo", line.c_str()};
    for (std::size_t i = line.find('\n'); i != std::string::npos; i = line.find('\n', i)) {
        line[i] = '\0';
        arguments.push_back(line.c_str() + ++i);
    }
    platform::x11::chooseHostWindow(static_cast<int>(arguments.size()), arguments.data());
    const ::Window window = platform::x11::hostWindow();
    if (window == 0)
        return;
    char hexadecimal[32];
    std::snprintf(hexadecimal, sizeof hexadecimal, "0x%lx", window);
    if (windowOf(std::to_string(window).c_str()) != window || windowOf(hexadecimal) != window)
        std::abort();
}
