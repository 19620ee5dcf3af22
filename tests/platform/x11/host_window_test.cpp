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
