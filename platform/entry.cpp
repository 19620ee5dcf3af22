#include "platform/desktop.h"
#include "platform/signals.h"

#include <chrono>
#include <span>
#include <string>
#include <utility>

namespace {

// Hosts wait a tenth of a second for their saver; the exit itself needs some of that.
constexpr std::chrono::milliseconds hostsPatience{80};

std::string joinedByBlanks(std::span<char* const> arguments)
{
    std::string line;
    const char* separator = "";
    for (const char* argument : arguments)
        line.append(std::exchange(separator, " ")).append(argument);
    return line;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const bool hosted = platform::desktop::chooseHost(argumentCount, arguments);
    platform::installEndSignals(hosted ? hostsPatience : std::chrono::milliseconds(0));
    // The first argument is the program's name, if there are arguments at all.
    const std::span<char* const> all(arguments, static_cast<std::size_t>(argumentCount));
    std::string commandLine = joinedByBlanks(all.empty() ? all : all.subspan(1));
    const int status = WinMain(GetModuleHandleA(nullptr), nullptr, commandLine.data(), SW_SHOW);
    platform::desktop::disconnect();
    return status;
}
