#include "tests/platform/x11/desktop_fixture.h"

#include <GL/gl.h>

#include <chrono>
#include <functional>

using namespace platform::desktop;

namespace {

unsigned short monitorPower = 0; // DPMSModeOn

} // namespace

// Linked in place of the library's: virtual servers do not have the extension.
extern "C" int DPMSQueryExtension(Display* /*display*/, int* /*event*/, int* /*error*/)
{
    return True;
}

extern "C" Status DPMSInfo(Display* /*display*/, unsigned short* level, unsigned char* /*enabled*/)
{
    *level = monitorPower;
    return True;
}

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

TEST_F(Port, RestsWhileNobodySeesTheWindowAndShowsTheNextFrameThatSomebodySees)
{
    const NativeWindow window = openAndShow();
    XSetWindowAttributes cover{};
    cover.override_redirect = True;
    const Window curtain =
        XCreateWindow(server, DefaultRootWindow(server), 0, 0, 1024, 768, 0, CopyFromParent,
                      InputOutput, nullptr, CWOverrideRedirect, &cover);
    const struct {
        const char* name;
        std::function<void()> hide, show;
    } cases[] = {
        {"covered", [&] { XMapRaised(server, curtain); }, [&] { XUnmapWindow(server, curtain); }},
        {"unmapped", [&] { XUnmapWindow(server, window); }, [&] { XMapWindow(server, window); }},
        {"monitor off", [] { monitorPower = 3; }, [] { monitorPower = 0; }},
    };
    const auto swap = [&] { // after all messages, as the program does
        for (Message message; nextMessage(message);)
            ;
        EXPECT_TRUE(swapBuffers(window));
    };
    const auto rests = [&] {
        const auto start = std::chrono::steady_clock::now();
        swap();
        return std::chrono::steady_clock::now() - start >= std::chrono::milliseconds(240);
    };
    glClearColor(1.0f, 1.0f, 1.0f, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    for (const auto& [name, hide, show] : cases) {
        hide();
        XSync(server, False);
        EXPECT_TRUE(User::waitUntil(rests)) << name;
        show();
        XSync(server, False);
        swap();
        EXPECT_EQ(user.look().brightness(400, 300), 255) << name;
    }
}

TEST_F(Port, TakesTheKeyboardBackFromWindowsThatAppear)
{
    manage();
    openAndShow();
    EXPECT_EQ(next(WM_ACTIVATE).wParam, WA_ACTIVE);
    for (int thief = 0; thief < 2; ++thief) { // the second one in less than a second
        XMapWindow(server,
                   XCreateSimpleWindow(server, DefaultRootWindow(server), 0, 0, 50, 50, 0, 0, 0));
        XSync(server, False);
        EXPECT_EQ(next(WM_ACTIVATE).wParam, WA_INACTIVE);
        EXPECT_EQ(next(WM_ACTIVATE).wParam, WA_ACTIVE);
    }
}
