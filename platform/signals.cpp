#include "platform/signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

// Whoever asks for the end, a host above all, expects it within a tenth of a second. Where hardware
// draws, this is enough for the rest of a frame at 60 Hz. Frames of a software renderer and files
// may take any time, and the exit itself, to release 200 MB, up to 80 ms on a busy machine.
constexpr itimerspec gracePeriod{{0, 0}, {0, 20'000'000}};

constinit volatile std::sig_atomic_t endFlag = 0;
constinit std::array<int, 2> endPipe = {-1, -1}; // reading end, writing end
constinit timer_t graceTimer{};

// Async-signal-safe, like all that these handlers call. The system and the X server release what is
// ours, and no destructor runs in the middle of what was interrupted.
void endAtOnce(int /*signal*/)
{
    _exit(0);
}

void requestEnd(int /*signal*/)
{
    const int savedError = errno;
    if (endFlag == 0)
        timer_settime(graceTimer, 0, &gracePeriod, nullptr);
    endFlag = 1;
    // A full pipe is as readable as one with a byte in it, so a failed write does no harm.
    [[maybe_unused]] const ssize_t written = write(endPipe[1], "", 1);
    errno = savedError;
}

// Also if the parent process had the signal ignored or blocked.
void handle(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART; // a read that is interrupted continues
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
    sigset_t handled;
    sigemptyset(&handled);
    sigaddset(&handled, signal);
    sigprocmask(SIG_UNBLOCK, &handled, nullptr);
}

} // namespace

void installEndSignals()
{
    // Without a pipe a message box does not notice the request; it ends with the grace period.
    if (pipe2(endPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        endPipe = {-1, -1};
    handle(SIGALRM, endAtOnce); // which the timer raises
    // Without a timer there is no grace period.
    const bool timed = timer_create(CLOCK_MONOTONIC, nullptr, &graceTimer) == 0;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        handle(signal, timed ? requestEnd : endAtOnce);
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
