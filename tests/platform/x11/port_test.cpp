#include "tests/platform/x11/desktop_fixture.h"

#include <GL/gl.h>

#include <chrono>
#include <functional>

using namespace platform::desktop;

namespace {

unsigned short monitorPower = 0; // DPMSModeOn
Bool sharedMemory = True;

} // namespace

// Linked in place of the libraries': virtual servers have no DPMS, and always shared memory.
extern "C" int DPMSQueryExtension(Display* /*display*/, int* /*event*/, int* /*error*/)
{
    return True;
}

extern "C" Status DPMSInfo(Display* /*display*/, unsigned short* level, unsigned char* /*enabled*/)
{
    *level = monitorPower;
    return True;
}

extern "C" Bool XShmQueryExtension(Display* /*display*/)
{
    return sharedMemory;
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

TEST_F(Port, EnlargesASmallerPictureToTheWindowAtRenderScale2)
{
    setenv("QUAZO_RENDER_SCALE", "2", 1);
    for (const Bool shared : {True, False}) {
        sharedMemory = shared;
        const NativeWindow window = open();
        EXPECT_EQ(next(WM_SIZE).client, (Size{400, 300}));
        EXPECT_TRUE(placeWindow(window, 0, 0, {1023, 767}, true));
        EXPECT_EQ(next(WM_SIZE).client, (Size{512, 384}));
        EXPECT_EQ(toldSize({1023, 767}), (Size{512, 384}));
        glViewport(0, 0, 512, 384);
        glColor3f(1.0f, 1.0f, 1.0f);
        glRecti(-1, -1, 0, 0); // the lower left quarter
        EXPECT_TRUE(swapBuffers(window));
        const auto expectQuarter = [&](int width, int height, int bottom) {
            const User::Picture picture = user.look();
            for (const int x : {0, width / 2 - 3, width / 2 + 3, 1020})
                for (const int y :
                     {0, bottom - height / 2 - 3, bottom - height / 2 + 3, bottom - 1})
                    EXPECT_EQ(picture.brightness(x, y),
                              x < width / 2 && y > bottom - height / 2 ? 255 : 0)
                        << x << " " << y;
            EXPECT_EQ(picture.brightness(0, bottom), 0); // the row under the window
        };
        expectQuarter(1023, 767, 767);
        // The picture stays at the lower left when the window becomes smaller.
        EXPECT_TRUE(placeWindow(window, 0, 0, {600, 500}, false));
        EXPECT_TRUE(swapBuffers(window));
        expectQuarter(1024, 768, 500);
        user.moveTo(11, 13);
        EXPECT_TRUE(User::waitUntil([] { return next(WM_MOUSEMOVE).pointer.y == 13; })); // unscaled
        EXPECT_TRUE(destroyWindow(window));
    }
    sharedMemory = True;
    setenv("QUAZO_RENDER_SCALE", "1", 1);
}
