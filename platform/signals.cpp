#include "platform/signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

constinit volatile std::sig_atomic_t endFlag = 0;
constinit std::array<int, 2> endPipe = {-1, -1}; // reading end, writing end

constinit bool patienceEnds = false;
constinit timer_t patienceTimer{};
constinit itimerspec patienceTime{};

void endAtOnce(int /*signal*/)
{
    _exit(0);
}

void requestEnd(int /*signal*/)
{
    const int savedError = errno;
    if (patienceEnds && endFlag == 0)
        timer_settime(patienceTimer, 0, &patienceTime, nullptr);
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
    sigset_t taken;
    sigemptyset(&taken);
    sigaddset(&taken, signal);
    sigprocmask(SIG_UNBLOCK, &taken, nullptr);
}

// The timer, once it is set, raises SIGALRM.
void limitPatience(std::chrono::milliseconds patience)
{
    patienceTime.it_value.tv_nsec = std::chrono::nanoseconds(patience).count();
    patienceEnds = timer_create(CLOCK_MONOTONIC, nullptr, &patienceTimer) == 0;
    handle(SIGALRM, endAtOnce);
}

} // namespace

void installEndSignals(std::chrono::milliseconds patience)
{
    if (patience.count() > 0)
        limitPatience(patience);
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
