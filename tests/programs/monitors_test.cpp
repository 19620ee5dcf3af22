#include <gtest/gtest.h> // before Xlib, which makes a macro of a name of its

#include "tests/programs/program.h"
#include "tests/support/user.h"
#include "tests/support/virtual_display.h"

#include <X11/extensions/Xrandr.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr int leftWidth = 600; // of the primary monitor

// A screen of two monitors, side by side; where the desktop is bare, it is white.
class Monitors : public testing::Test {
protected:
    Monitors()
    {
        XSetWindowBackground(server, root, 0xFFFFFF);
        XClearWindow(server, root);
        XRRScreenResources* const resources = XRRGetScreenResourcesCurrent(server, root);
        define("left", 0, leftWidth, resources->outputs); // in place of the output's own
        define("right", leftWidth, 1024 - leftWidth, nullptr);
        XRRFreeScreenResources(resources);
        user.moveTo(700, 100);
    }

    void define(const char* name, int x, int width, RROutput* output)
    {
        const Atom atom = XInternAtom(server, name, False);
        const int outputs = output != nullptr;
        XRRMonitorInfo monitor{atom, outputs, False, outputs, x, 0, width, 768, 0, 0, output};
        XRRDeleteMonitor(server, root, atom);
        XRRSetMonitor(server, root, &monitor);
        XSync(server, False);
    }

    /// Waits for the saver's picture; the curtain's left edge, 0 where there is none.
    int curtain() const
    {
        EXPECT_TRUE(User::waitUntil([&] { return user.look().brightness(10, 10) < 255; }));
        int edge = 0;
        for (const Window window : user.mappedWindows())
            edge = std::max(edge, user.attributesOf(window).x);
        return edge;
    }

    /// Of the darkest and the brightest pixel of the right monitor; looks at every fourth one.
    std::pair<int, int> brightness() const
    {
        const User::Picture picture = user.look();
        int darkest = 255, brightest = 0;
        for (int y = 0; y < 768; y += 2)
            for (int x = leftWidth; x < 1024; x += 2) {
                darkest = std::min(darkest, picture.brightness(x, y));
                brightest = std::max(brightest, picture.brightness(x, y));
            }
        return {darkest, brightest};
    }

    bool showsAPicture() const
    {
        const auto [darkest, brightest] = brightness();
        return darkest < 40 && brightest > 40;
    }

    VirtualDisplay display{"1024x768x24"};
    User user;
    Display* const server = user.connection();
    const Window root = DefaultRootWindow(server);
};

TEST_F(Monitors, AreAllCoveredAndAllUsersInputOnThemCounts)
{
    ChildProcess saver = quazo({"/s"});
    EXPECT_EQ(curtain(), leftWidth);
    EXPECT_EQ(brightness(), std::pair(0, 0));
    // With a change the server moves the pointer: that is not the user's move.
    XGrabServer(server);
    define("right", leftWidth + 100, 324, nullptr);
    user.moveTo(900, 600);
    XUngrabServer(server);
    EXPECT_TRUE(User::waitUntil([&] { return curtain() == leftWidth + 100; }));
    user.moveTo(900, 700); // 100 pixels
    EXPECT_EQ(saver.wait(std::chrono::milliseconds(500)), std::nullopt);
    user.moveTo(901, 700);
    EXPECT_EQ(saver.wait(), 0);
    EXPECT_TRUE(user.mappedWindows().empty());
    ChildProcess another = quazo({"/s"});
    EXPECT_NE(curtain(), 0);
    user.click(3);
    EXPECT_EQ(another.wait(), 0);
}

/// Whether a copy of the saver runs that was told to draw in one of these windows.
bool copyRuns(const std::vector<Window>& windows)
{
    for (const auto& process : std::filesystem::directory_iterator("/proc")) {
        std::ifstream file(process.path() / "cmdline");
        std::string line;
        std::getline(file, line);
        for (const Window window : windows)
            if (line.ends_with("--window-id" + ('\0' + std::to_string(window)) + '\0'))
                return true;
    }
    return false;
}

TEST_F(Monitors, HavePicturesOfTheirOwnThatEndWithTheSaver)
{
    define("mirror", leftWidth, 1024 - leftWidth, nullptr); // of the right one: covered with it
    for (const int signal : {SIGTERM, SIGKILL}) {
        ChildProcess saver({QUAZO_ON_HARDWARE, "/s"});
        EXPECT_EQ(curtain(), leftWidth);
        EXPECT_TRUE(User::waitUntil([&] { return showsAPicture(); }));
        const std::vector<Window> windows = user.mappedWindows();
        EXPECT_EQ(windows.size(), 2u); // a copy lays no curtains
        EXPECT_TRUE(copyRuns(windows));
        saver.signal(signal);
        saver.wait();
        EXPECT_TRUE(User::waitUntil([&] { return !copyRuns(windows); }));
        EXPECT_EQ(saver.standardError(), "");
    }
}

} // namespace
