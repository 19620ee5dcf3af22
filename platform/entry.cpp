#include "platform/desktop.h"
#include "platform/signals.h"

#include <fcntl.h>
#include <span>
#include <string>
#include <unistd.h>
#include <utility>

namespace {

// A descriptor that the parent process closed would be given to the next file that is opened: log
// lines would go into the connection to the X server.
void openStandardDescriptors()
{
    int descriptor = STDIN_FILENO;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO)
        descriptor = open("/dev/null", O_RDWR);
    close(descriptor);
}

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
    openStandardDescriptors();
    platform::installEndSignals();
    platform::desktop::chooseHost(argumentCount, arguments);
    // The first argument is the program's name, if there are arguments at all.
    const std::span<char* const> all(arguments, static_cast<std::size_t>(argumentCount));
    std::string commandLine = joinedByBlanks(all.empty() ? all : all.subspan(1));
    const int status = WinMain(GetModuleHandleA(nullptr), nullptr, commandLine.data(), SW_SHOW);
    platform::desktop::disconnect();
    return status;
}
