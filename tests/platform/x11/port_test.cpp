#include "tests/platform/x11/desktop_fixture.h"

using namespace platform::desktop;

using Port = DesktopFixture;

TEST_F(Port, CoversTheScreenOfAManagerWithItsFirstFrameAndTellsWhenItIsMinimised)
{
    manage();
    constexpr WPARAM minimised = WPARAM{1} << 16;
    const NativeWindow window = open();
    EXPECT_TRUE(placeWindow(window, 0, 0, {1024, 767}, true));
    EXPECT_EQ(next(WM_SIZE).client, (Size{1024, 767}));
    EXPECT_EQ(user.attributesOf(window).map_state, IsUnmapped);
    EXPECT_TRUE(swapBuffers(window));
    EXPECT_EQ(user.attributesOf(window).map_state, IsViewable);
    EXPECT_TRUE(User::waitUntil([] { return next(WM_SIZE).client == Size{1024, 768}; }));
    XIconifyWindow(server, window, 0);
    XSync(server, False);
    EXPECT_TRUE(User::waitUntil([] { return next(WM_ACTIVATE).wParam == minimised; }));
    XMapWindow(server, window);
    XSync(server, False);
    EXPECT_TRUE(User::waitUntil([] { return next(WM_ACTIVATE).wParam == WA_ACTIVE; }));
}
