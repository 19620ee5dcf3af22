#include <gtest/gtest.h> // before Xlib, which makes a macro of a name of its

#include "tests/programs/program.h"
#include "tests/support/user.h"
#include "tests/support/virtual_display.h"

#include <X11/Xutil.h>

#include <csignal>
#include <sstream>

namespace {

// The user is the host too: it makes the windows that savers draw in.
class Hosts : public testing::Test {
protected:
    VirtualDisplay display{"1024x768x24"};
    User user;

    /// A window whose visual is not the default one, and for which the host selects button presses,
    /// as only one client can.
    Window hostWindow(int x) const
    {
        Display* server = user.connection();
        XVisualInfo visual{};
        XMatchVisualInfo(server, DefaultScreen(server), 32, TrueColor, &visual);
        XSetWindowAttributes attributes{};
        attributes.colormap =
            XCreateColormap(server, DefaultRootWindow(server), visual.visual, AllocNone);
        attributes.event_mask = ButtonPressMask;
        const Window window = XCreateWindow(server, DefaultRootWindow(server), x, 0, 400, 300, 0,
                                            visual.depth, InputOutput, visual.visual,
                                            CWColormap | CWBorderPixel | CWEventMask, &attributes);
        XMapWindow(server, window);
        XSync(server, False);
        return window;
    }

    Window childOf(Window window) const
    {
        const std::vector<Window> children = user.mappedWindows(window);
        return children.empty() ? 0 : children.front();
    }

    bool isFilled(Window host) const
    {
        const Window child = childOf(host);
        if (child == 0)
            return false;
        const XWindowAttributes inside = user.attributesOf(child);
        const XWindowAttributes around = user.attributesOf(host);
        return inside.width == around.width && inside.height == around.height;
    }

    /// Whether something is drawn between these columns, above row 300.
    bool isLit(int left, int right) const
    {
        const User::Picture picture = user.look();
        for (int y = 0; y < 300; ++y)
            for (int x = left; x < right; ++x)
                if (picture.brightness(x, y) > 0)
                    return true;
        return false;
    }
};

std::string hexadecimal(Window window)
{
    std::ostringstream text;
    text << "0x" << std::hex << std::uppercase << window;
    return text.str();
}

TEST_F(Hosts, HaveTheirWindowFilledUntilTheyAskForTheEnd)
{
    const Window left = hostWindow(0);
    const Window right = hostWindow(500);
    ChildProcess byEnvironment =
        quazo({"/s"}, {{"XSCREENSAVER_WINDOW", hexadecimal(left)}, {"QUAZO_RENDER_SCALE", "3"}});
    ChildProcess byArgument = quazo({"/s", "--window-id", std::to_string(right)});
    ASSERT_TRUE(User::waitUntil([&] { return isFilled(left) && isFilled(right); }));
    ASSERT_TRUE(User::waitUntil([&] { return isLit(0, 400) && isLit(500, 900); }));
    EXPECT_EQ(user.mappedWindows().size(), 2u); // none of the savers' own

    user.moveTo(10, 10);
    user.moveTo(300, 200);
    user.click(1); // the host's, not the saver's
    XResizeWindow(user.connection(), left, 450, 350);
    EXPECT_TRUE(User::waitUntil([&] { return isFilled(left); }));
    for (ChildProcess* saver : {&byEnvironment, &byArgument}) {
        EXPECT_TRUE(saver->isRunning());
        saver->signal(SIGTERM);
        EXPECT_EQ(saver->wait(), 0);
        EXPECT_EQ(saver->standardError(), "");
    }
    EXPECT_TRUE(User::waitUntil([&] { return childOf(left) == 0; }));
}

TEST_F(Hosts, EndTheSaverWithTheirWindow)
{
    const Window window = hostWindow(0);
    ChildProcess saver = quazo({"/s"}, {{"XSCREENSAVER_WINDOW", std::to_string(window)}});
    ASSERT_TRUE(User::waitUntil([&] { return isLit(0, 400); }));
    XDestroyWindow(user.connection(), window);
    XSync(user.connection(), False);
    EXPECT_EQ(saver.wait(), 0);
    EXPECT_EQ(saver.standardError(), "");
}

TEST_F(Hosts, GetNoWindowOfOursForAnIdThatIsNone)
{
    const struct {
        std::vector<std::string> arguments;
        const char *environment, *named;
    } cases[] = {{{"/s"}, "12", "12"},
                 {{"/s"}, "0x0", "0x0"},
                 {{"/s"}, "wayland-token", "wayland-token"},
                 {{"/s", "--window-id", ""}, "", "an empty --window-id"},
                 {{"/s", "--window-id"}, "", "an empty --window-id"}};
    for (const auto& [arguments, environment, named] : cases) {
        ChildProcess saver = quazo(arguments, {{"XSCREENSAVER_WINDOW", environment}});
        EXPECT_EQ(saver.wait(), 1);
        EXPECT_EQ(saver.standardError(),
                  "quazo: " + std::string(named) + ", given by the host, is no window\n");
    }
}

// A box in a host would never be seen, and the host would wait for it.
TEST_F(Hosts, ReadMessagesOnStandardErrorIfTheyHaveOne)
{
    const std::string window = std::to_string(hostWindow(0));
    const ChildProcess::Environment noData{{"XSCREENSAVER_WINDOW", window},
                                           {"QUAZO_WINDOWS_DIRECTORY", "/nowhere"}};
    ChildProcess saver = quazo({"/s"}, noData);
    EXPECT_EQ(saver.wait(), 1);
    EXPECT_EQ(saver.standardError(), "erreur : datas untrouvable\n");
    ChildProcess unable =
        quazo({"/s"}, {{"XSCREENSAVER_WINDOW", window}, {"LIBGL_ALWAYS_INDIRECT", "1"}});
    EXPECT_EQ(unable.wait(), 1);
    EXPECT_EQ(unable.standardError(),
              "quazo: cannot draw in the host's window: no OpenGL context\n");
    ChildProcess silent({"/bin/sh", "-c", "exec \"$0\" /s 2>&-", QUAZO_PROGRAM}, noData);
    EXPECT_EQ(silent.wait(), 1);
}

} // namespace
