#include "tests/platform/x11/desktop_fixture.h"

#include <cstdlib>
#include <string>

using namespace platform::desktop;

using HostWindow = DesktopFixture;

TEST_F(HostWindow, IsNamedByTheArgumentBeforeTheEnvironmentAndIsTheDesktop)
{
    const Window root = DefaultRootWindow(server);
    const Window window = XCreateSimpleWindow(server, root, 50, 60, 300, 200, 0, 0, 0);
    XSync(server, False);
    const std::string host = std::to_string(window);
    const struct {
        std::string argument, environment;
        Size size;
    } cases[] = {{host, "12", {300, 200}}, {"none", host, {300, 200}}, {"", "", screen}};
    const Atom flag = XInternAtom(server, "_QUAZO_SCREENSAVER_RUNNING", False);
    const auto isSet = [&] { return XGetSelectionOwner(server, flag) != 0; };
    for (const auto& [argument, environment, size] : cases) {
        setenv("XSCREENSAVER_WINDOW", environment.c_str(), 1);
        const char* const arguments[] = {"quazo", "/s", "--window-id", argument.c_str()};
        chooseHost(argument.empty() ? 2 : 4, arguments);
        Size desktop;
        EXPECT_TRUE(platform::desktop::size(desktop));
        EXPECT_EQ(desktop, size) << argument;
        setScreenSaverRunning(true);
        XSync(platform::x11::connection(), False);
        EXPECT_EQ(isSet(), size == screen); // in a host's window the host does that
        disconnect();                       // as when the process is killed
        EXPECT_TRUE(User::waitUntil([&] { return !isSet(); }));
    }
}

TEST_F(HostWindow, GivesSaversOfTheSameSecondPicturesOfTheirOwn)
{
    const auto firstRandom = [this](Window host) {
        const std::string number = std::to_string(host);
        const char* const arguments[] = {"quazo", "--window-id", number.c_str()};
        chooseHost(host == 0 ? 1 : 3, arguments);
        std::srand(7);
        EXPECT_NE(createWindow("title", 0, 0, {800, 600}), 0u);
        disconnect();
        return std::rand();
    };
    unsetenv("XSCREENSAVER_WINDOW");
    const Window root = DefaultRootWindow(server);
    const Window first = XCreateSimpleWindow(server, root, 0, 0, 300, 200, 0, 0, 0);
    const Window second = XCreateSimpleWindow(server, root, 0, 0, 300, 200, 0, 0, 0);
    XSync(server, False);
    std::srand(7);
    const int unchanged = std::rand();
    EXPECT_NE(firstRandom(first), unchanged);
    EXPECT_NE(firstRandom(first), firstRandom(second));
    EXPECT_EQ(firstRandom(0), unchanged);
}
