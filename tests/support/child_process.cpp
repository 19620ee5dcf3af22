#include "tests/support/child_process.h"

#include <csignal>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

std::string contentsOf(int file)
{
    std::string text(static_cast<std::size_t>(lseek(file, 0, SEEK_END)), '\0');
    text.resize(
        static_cast<std::size_t>(std::max<ssize_t>(0, pread(file, text.data(), text.size(), 0))));
    return text;
}

[[noreturn]] void become(const std::vector<std::string>& arguments,
                         const ChildProcess::Environment& changes, const int (&outputs)[2])
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(outputs[0], STDOUT_FILENO);
    dup2(outputs[1], STDERR_FILENO);
    for (const auto& [name, value] : changes)
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    execv(words.front(), words.data());
    _exit(127);
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& arguments, const Environment& changes)
    : process(0),
      outputs{memfd_create("stdout", MFD_CLOEXEC), memfd_create("stderr", MFD_CLOEXEC)}
{
    process = fork();
    if (process == 0)
        become(arguments, changes, outputs);
}

ChildProcess::~ChildProcess()
{
    if (isRunning()) {
        signal(SIGKILL);
        waitpid(process, nullptr, 0);
    }
    close(outputs[0]);
    close(outputs[1]);
}

void ChildProcess::signal(int number) const
{
    kill(process, number);
}

bool ChildProcess::isRunning()
{
    return !wait(std::chrono::milliseconds(0));
}

std::optional<int> ChildProcess::wait(std::chrono::milliseconds limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!status) {
        int word = 0;
        if (waitpid(process, &word, WNOHANG) == process)
            status = WIFEXITED(word) ? WEXITSTATUS(word) : 128 + WTERMSIG(word);
        else if (std::chrono::steady_clock::now() >= end)
            break;
        else
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return status;
}

std::string ChildProcess::standardOutput() const
{
    return contentsOf(outputs[0]);
}

std::string ChildProcess::standardError() const
{
    return contentsOf(outputs[1]);
}
