#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A program that runs as a child process. Its output goes to files of its own. It is killed and
/// reaped by the destructor, and killed when the test program ends.
class ChildProcess {
public:
    using Environment = std::vector<std::pair<std::string, std::string>>;

    /// Starts `arguments`, the first being the program's path, with `changes` made to the
    /// environment; an empty value unsets the variable.
    explicit ChildProcess(const std::vector<std::string>& arguments,
                          const Environment& changes = {});
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    void signal(int number) const;
    bool isRunning();

    /// The exit status, or 128 and the signal's number; nothing when it still runs after `limit`.
    std::optional<int> wait(std::chrono::milliseconds limit = std::chrono::seconds(20));

    std::string standardOutput() const;
    std::string standardError() const;

private:
    pid_t process;
    int outputs[2];
    std::optional<int> status;
};
