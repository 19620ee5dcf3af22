#include "platform/win32.h"

#include <csignal>
#include <cstdlib>
#include <utility>

namespace platform {

namespace {

constinit bool flagSet = false;

BOOL tellSystem(bool running)
{
    flagSet = running;
    return (::SystemParametersInfoA)(SPI_SETSCREENSAVERRUNNING, running ? TRUE : FALSE, nullptr, 0);
}

void clearFlag()
{
    if (flagSet)
        tellSystem(false);
}

LONG WINAPI clearFlagOnCrash(EXCEPTION_POINTERS* /*exception*/)
{
    clearFlag();
    return EXCEPTION_CONTINUE_SEARCH;
}

// The system keeps the flag when a process ends.
void clearFlagAtEveryEnd()
{
    static constinit bool installed = false;
    if (std::exchange(installed, true))
        return;
    SetUnhandledExceptionFilter(clearFlagOnCrash);
    std::atexit(clearFlag);
    std::signal(SIGABRT, [](int) { clearFlag(); }); // std::abort passes neither
}

} // namespace

BOOL shell_calls::systemParametersInfo(UINT action, UINT parameter, LPVOID buffer, UINT flags)
{
    if (action != SPI_SETSCREENSAVERRUNNING)
        return (::SystemParametersInfoA)(action, parameter, buffer, flags);
    clearFlagAtEveryEnd();
    return tellSystem(parameter != FALSE);
}

} // namespace platform

// The linker gives us the calls of _exit, the end without atexit's functions.
extern "C" {

[[noreturn]] void __real__exit(int status);
[[noreturn]] void __wrap__exit(int status);

void __wrap__exit(int status)
{
    platform::clearFlag();
    __real__exit(status);
}

} // extern "C"
