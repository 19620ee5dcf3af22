#include "tests/app/shell.h"
#include "tests/support/allocations.h"

#include <cstdio>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

/// What a process that calls `work` exits with, and what it writes to standard error.
std::pair<int, std::string> inChild(const std::function<int()>& work)
{
    std::FILE* const errors = std::tmpfile();
    if (errors == nullptr)
        return {-1, "no temporary file"};
    const pid_t child = fork();
    if (child == 0) {
        dup2(fileno(errors), STDERR_FILENO);
        // As in `main`: nothing outside catches an exception.
        std::_Exit([&]() noexcept { return work(); }());
    }
    int word = 0;
    waitpid(child, &word, 0);
    char text[4096] = "";
    std::fseek(errors, 0, SEEK_SET);
    text[std::fread(text, 1, sizeof text - 1, errors)] = '\0';
    std::fclose(errors);
    return {WIFEXITED(word) ? WEXITSTATUS(word) : 128 + WTERMSIG(word), text};
}

int startAndDrawThreeFrames()
{
    char commandLine[] = "/s";
    for (const UINT message : {0u, 0u, WM_CLOSE})
        play(message);
    return WinMain(nullptr, nullptr, commandLine, SW_SHOW);
}

} // namespace

TEST_F(Shell, EndsWithALineAndAStatusWhicheverAllocationFails)
{
    gl_recorder::pause();
    const std::size_t before = allocations::count();
    EXPECT_EQ(startAndDrawThreeFrames(), 0);
    const std::size_t allocated = allocations::count() - before;
    EXPECT_GT(allocated, 100u);
    restart();
    gl_recorder::pause();
    for (std::size_t n = 1; n <= allocated; ++n) {
        const auto [status, text] = inChild([n] {
            const allocations::Failure failure(n);
            return startAndDrawThreeFrames();
        });
        // A stream or a path of the standard library may do without.
        EXPECT_TRUE((status == 2 && text == "quazo: out of memory\n") ||
                    (status == 0 && text.empty()))
            << n << ": " << status << " " << text;
    }
}

TEST_F(Shell, EndsWithStatusZeroWhicheverRequestFails)
{
    run();
    const std::size_t requests = headless_desktop::takeRequests().size();
    EXPECT_GT(requests, 15u);
    for (std::size_t n = 1; n <= requests; ++n) {
        restart();
        headless_desktop::failAt(n);
        const auto [status, text] = inChild([] {
            const int result = startAndDrawThreeFrames();
            std::fputs(joined(headless_desktop::takeRequests()).c_str(), stderr);
            return result;
        });
        EXPECT_EQ(status, 0) << n;
        EXPECT_THAT(text, testing::HasSubstr("setScreenSaverRunning(false)")) << n;
    }
}
