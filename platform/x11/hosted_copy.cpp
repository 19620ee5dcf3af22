#include "platform/x11/hosted_copy.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace platform::x11 {

namespace {

// What a host has told us is not for the copy, whose host we are.
std::vector<char*> environmentForCopy()
{
    std::vector<char*> kept;
    for (char** variable = environ; *variable != nullptr; ++variable)
        if (!std::string_view(*variable).starts_with("XSCREENSAVER_"))
            kept.push_back(*variable);
    kept.push_back(nullptr);
    return kept;
}

// The kernel reaps children that end: nobody waits for them.
void leaveChildrenToKernel()
{
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    action.sa_flags = SA_NOCLDWAIT;
    sigemptyset(&action.sa_mask);
    sigaction(SIGCHLD, &action, nullptr);
}

// By its own name, which tools that list processes show. Empty when it cannot be known.
std::string programFile()
{
    std::error_code failure;
    return std::filesystem::read_symlink("/proc/self/exe", failure).string();
}

} // namespace

// Spawning does not copy our memory, as forking would. What the copy says has been said by us.
void startCopyIn(::Window window)
{
    leaveChildrenToKernel();
    posix_spawn_file_actions_t files;
    if (posix_spawn_file_actions_init(&files) != 0)
        return;
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&files, standard, "/dev/null", O_RDWR, 0);
    posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
    std::string number = std::to_string(window);
    char name[] = "quazo", run[] = "/s", option[] = "--window-id";
    char* const arguments[] = {name, run, option, number.data(), nullptr};
    pid_t process = 0;
    posix_spawn(&process, programFile().c_str(), &files, nullptr, arguments,
                environmentForCopy().data());
    posix_spawn_file_actions_destroy(&files);
}

} // namespace platform::x11
