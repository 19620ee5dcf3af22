#include "tests/platform/x11/desktop_fixture.h"

#include <cstdlib>
#include <sstream>
#include <string>
#include <X11/Xutil.h>

using namespace platform::desktop;

namespace {

class Host : public DesktopFixture {
protected:
    ~Host() override { choose("", nullptr); }

    /// A window of 300 by 200 with a visual that is not the default one, whose clicks the host
    /// listens to, as only one client can.
    static Window makeHostWindow(Display* server)
    {
        const Window root = DefaultRootWindow(server);
        XVisualInfo visual{};
        EXPECT_NE(XMatchVisualInfo(server, 0, 32, TrueColor, &visual), 0);
        XSetWindowAttributes attributes{};
        attributes.colormap = XCreateColormap(server, root, visual.visual, AllocNone);
        attributes.event_mask = ButtonPressMask;
        const Window window =
            XCreateWindow(server, root, 50, 60, 300, 200, 0, visual.depth, InputOutput,
                          visual.visual, CWColormap | CWBorderPixel | CWEventMask, &attributes);
        XMapWindow(server, window);
        XSync(server, False);
        return window;
    }

    static void choose(const std::string& argument, const char* environment)
    {
        unsetenv("XSCREENSAVER_WINDOW");
        if (environment != nullptr)
            setenv("XSCREENSAVER_WINDOW", environment, 1);
        const char* arguments[] = {"quazo", "/s", "--window-id", argument.c_str()};
        chooseHost(argument.empty() ? 2 : 4, arguments);
    }
};

} // namespace

TEST_F(Host, GivesItsWindowAsTheDesktop)
{
    Display* const server = user.connection();
    const Window hostWindow = makeHostWindow(server);
    std::ostringstream hexadecimal;
    hexadecimal << "0x" << std::hex << std::uppercase << hostWindow;
    choose("", hexadecimal.str().c_str());
    const NativeWindow window = open();
    EXPECT_TRUE(placeWindow(window, 0, 0, {300, 199}, true));
    setScreenSaverRunning(true);
    EXPECT_EQ(next(WM_SIZE).lParam, MAKELPARAM(300, 200)); // it fills the host's window
    EXPECT_EQ(user.attributesOf(window).depth, 24);
    const Atom flag = XInternAtom(server, "_QUAZO_SCREENSAVER_RUNNING", False);
    EXPECT_EQ(XGetSelectionOwner(server, flag), 0U);

    XResizeWindow(server, hostWindow, 400, 250);
    user.moveTo(100, 100);
    user.click(1);
    EXPECT_EQ(next(WM_SIZE).lParam, MAKELPARAM(400, 250));
    XEvent event;
    EXPECT_TRUE(XCheckTypedWindowEvent(server, hostWindow, ButtonPress, &event));
    EXPECT_EQ(event.xbutton.subwindow, window);
    for (const UINT input : {WM_MOUSEMOVE, WM_LBUTTONDOWN})
        EXPECT_FALSE(hasCome(input));
    POINT pointer{};
    EXPECT_TRUE(pointerPosition(pointer));
    EXPECT_EQ(pointer.y, 40);
}

TEST_F(Host, IsNamedByTheArgumentThenByTheEnvironment)
{
    const std::string number = std::to_string(makeHostWindow(user.connection()));
    const Size hostSize{300, 200};
    const struct {
        std::string argument;
        const char* environment;
        Size desktop;
    } cases[] = {
        {number, "12", hostSize},
        {"none", number.c_str(), hostSize},
        {"", "", screen},
        {"", nullptr, screen},
    };
    for (const auto& [argument, environment, desktop] : cases) {
        choose(argument, environment);
        Size size;
        EXPECT_TRUE(platform::desktop::size(size));
        EXPECT_EQ(size, desktop) << argument;
        disconnect();
    }
}

TEST_F(Host, EndsTheProcessWithItsWindow)
{
    const auto loseHost = [this] {
        const User host;
        const Window window = makeHostWindow(host.connection());
        choose(std::to_string(window), nullptr);
        open();
        XDestroyWindow(host.connection(), window);
        XSync(host.connection(), False);
        (void)next(WM_QUIT); // what no desktop sends
        _exit(7);
    };
    EXPECT_EXIT(loseHost(), testing::ExitedWithCode(0), "^$");
}

TEST_F(Host, EndsTheProcessWhenItsWindowIsNone)
{
    for (const char* number : {"0", "12", "0xFFFFFFFFFFFFFFFFF", "wayland-token"}) {
        choose(number, nullptr);
        EXPECT_EXIT((void)createWindow("title", 0, 0, {800, 600}), testing::ExitedWithCode(1),
                    "^quazo: .+, given by the host, is no window\n$");
    }
}
