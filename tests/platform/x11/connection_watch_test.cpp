#include "tests/platform/x11/desktop_fixture.h"

#include <array>
#include <csignal>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using namespace platform::desktop;

namespace {

/// A program that has connected, in this host's window (0: none), and then never reads an event.
class StuckProgram {
public:
    explicit StuckProgram(Window host)
    {
        std::array<int, 2> ends{}; // to read from, to write to
        EXPECT_EQ(pipe(ends.data()), 0);
        process = fork();
        if (process == 0) {
            const std::string number = std::to_string(host);
            const char* const arguments[] = {"quazo", "--window-id", number.c_str()};
            chooseHost(host == 0 ? 1 : 3, arguments);
            Size size;
            if (platform::desktop::size(size) && write(ends[1], "", 1) == 1)
                for (;;)
                    pause();
            _exit(1);
        }
        char connected = 0;
        close(ends[1]); // so that the end of a program that cannot connect is the pipe's, too
        EXPECT_EQ(read(ends[0], &connected, 1), 1);
        close(ends[0]);
    }

    ~StuckProgram()
    {
        if (!ended)
            kill(process, SIGKILL);
    }
    StuckProgram(const StuckProgram&) = delete;
    StuckProgram& operator=(const StuckProgram&) = delete;

    bool isRunning() { return !hasEnded(); }

    /// The wait status, 0 for an exit with status 0; -1 when it still runs after 20 seconds.
    int status()
    {
        User::waitUntil([this] { return hasEnded(); });
        return waitStatus;
    }

private:
    bool hasEnded()
    {
        ended = ended || waitpid(process, &waitStatus, WNOHANG) == process;
        return ended;
    }

    pid_t process = 0;
    bool ended = false;
    int waitStatus = -1;
};

} // namespace

using ConnectionWatch = DesktopFixture;

TEST_F(ConnectionWatch, EndsAStuckProgramWithTheHostsWindow)
{
    constexpr std::chrono::milliseconds aMoment{300};
    const Window host =
        XCreateSimpleWindow(server, DefaultRootWindow(server), 0, 0, 300, 200, 0, 0, 0);
    XSync(server, False);
    StuckProgram program(host);
    XResizeWindow(server, host, 400, 300); // no reason to end
    XSync(server, False);
    EXPECT_FALSE(User::waitUntil([&] { return !program.isRunning(); }, aMoment));
    XDestroyWindow(server, host);
    XSync(server, False);
    EXPECT_EQ(program.status(), 0);
}

// This process must not be connected itself: Xlib would end it with the server.
TEST(ConnectionWatchAlone, EndsAStuckProgramWithTheServer)
{
    std::optional<VirtualDisplay> display(std::in_place);
    StuckProgram program(0);
    display.reset();
    EXPECT_EQ(program.status(), 0);
}
