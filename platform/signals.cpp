#include "platform/signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

constinit volatile std::sig_atomic_t endFlag = 0;
constinit std::array<int, 2> endPipe = {-1, -1}; // reading end, writing end

void requestEnd(int /*signal*/)
{
    const int savedError = errno;
    endFlag = 1;
    // A full pipe can be read as well as one with a byte in it, so a failed write loses nothing.
    [[maybe_unused]] const ssize_t written = write(endPipe[1], "", 1);
    errno = savedError;
}

void handle(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART; // reading a data file goes on where it was
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

} // namespace

void installEndSignals()
{
    if (pipe2(endPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        endPipe = {-1, -1};
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        handle(signal, requestEnd);
    handle(SIGPIPE, SIG_IGN);
}

bool endRequested()
{
    return endFlag != 0;
}

int endSignalDescriptor()
{
    return endPipe[0];
}

} // namespace platform
