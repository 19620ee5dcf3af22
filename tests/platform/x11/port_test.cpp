#include "tests/platform/x11/desktop_fixture.h"

using namespace platform::desktop;

using Port = DesktopFixture;

TEST_F(Port, CoversTheScreenOfAManagerAndTellsWhenItIsMinimised)
{
    manage();
    constexpr WPARAM minimised = WPARAM{1} << 16;
    const NativeWindow window = open();
    EXPECT_TRUE(placeWindow(window, 0, 0, {1024, 767}, true));
    EXPECT_TRUE(User::waitUntil([] { return next(WM_SIZE).client == Size{1024, 768}; }));
    XIconifyWindow(server, window, 0);
    XSync(server, False);
    EXPECT_TRUE(User::waitUntil([] { return next(WM_ACTIVATE).wParam == minimised; }));
    XMapWindow(server, window);
    XSync(server, False);
    EXPECT_TRUE(User::waitUntil([] { return next(WM_ACTIVATE).wParam == WA_ACTIVE; }));
}
