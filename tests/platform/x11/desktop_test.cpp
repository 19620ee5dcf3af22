#include "tests/platform/x11/desktop_fixture.h"

#include "platform/x11/display.h"
#include "platform/x11/window_manager.h"

#include <csignal>
#include <X11/extensions/XTest.h>
#include <X11/XKBlib.h>
#include <X11/Xutil.h>

using namespace platform::desktop;
using platform::x11::connection;
using platform::x11::managerRuns;

namespace {

class Desktop : public DesktopFixture {
protected:
    // A manager claims the screen some time before it listens: a window that it shows is proof.
    void waitForManager()
    {
        ASSERT_TRUE(User::waitUntil([] { return managerRuns(connection()); }));
        const Window probe =
            XCreateSimpleWindow(server, DefaultRootWindow(server), 0, 0, 9, 9, 0, 0, 0);
        ASSERT_TRUE(User::waitUntil([&] {
            XMapWindow(server, probe);
            return user.attributesOf(probe).map_state == IsViewable;
        }));
        XDestroyWindow(server, probe);
        XSync(server, False);
    }

    // The next activation that is another than `passing`, which the focus on its way may cause.
    WPARAM nextActivation(WPARAM passing)
    {
        Message activation = next(WM_ACTIVATE);
        while (activation.message != 0 && activation.wParam == passing)
            activation = next(WM_ACTIVATE);
        return activation.wParam;
    }

    Display* const server = user.connection();
};

} // namespace

TEST_F(Desktop, PlacesAWindowExactlyWhereNoManagerRuns)
{
    const NativeWindow window = open();
    EXPECT_TRUE(placeWindow(window, 0, 0, {1024, 767}, true));
    const XWindowAttributes place = user.attributesOf(window);
    EXPECT_EQ(place.map_state, IsViewable);
    EXPECT_EQ((Size{place.width, place.height}), (Size{1024, 767}));
    EXPECT_EQ((Size{place.x, place.y}), (Size{0, 0}));
    EXPECT_EQ(place.depth, 24);
    Window focus = 0;
    int revert = 0;
    XGetInputFocus(server, &focus, &revert);
    EXPECT_EQ(focus, window);
    EXPECT_FALSE(hasCome(WM_SIZE)); // the old size is history, the asked one is known

    XResizeWindow(server, window, 640, 480);
    XSync(server, False);
    EXPECT_EQ(next(WM_SIZE).lParam, MAKELPARAM(640, 480));
    EXPECT_TRUE(destroyWindow(window));
    EXPECT_FALSE(destroyWindow(window));
    EXPECT_EQ(createWindow("title", 0, 0, {0, 0}), 0U);
    EXPECT_TRUE(user.mappedWindows().empty());
}

TEST_F(Desktop, CoversTheScreenWhereAManagerRuns)
{
    constexpr WPARAM minimised = WPARAM{1} << 16;
    const ChildProcess manager({QUAZO_OPENBOX, "--sm-disable"});
    waitForManager();
    const NativeWindow window = open();
    EXPECT_TRUE(placeWindow(window, 0, 0, {1024, 767}, true));
    EXPECT_EQ(next(WM_SIZE).lParam, MAKELPARAM(1024, 768));
    EXPECT_EQ(next(WM_ACTIVATE).wParam, WA_ACTIVE);
    XIconifyWindow(server, window, 0);
    XSync(server, False);
    EXPECT_EQ(nextActivation(WA_INACTIVE), minimised);
    XMapWindow(server, window);
    XSync(server, False);
    EXPECT_EQ(nextActivation(minimised), WA_ACTIVE);
}

TEST_F(Desktop, ReportsThePointerFromTheStartAndAtEveryStep)
{
    user.moveTo(300, 200);
    open();
    EXPECT_EQ(next(WM_MOUSEMOVE).pointer.x, 300);
    for (int step = 1; step <= 100; ++step)
        user.moveTo(300 + step, 200 - step);
    for (int x = 300; x < 400;) {
        const POINT place = next(WM_MOUSEMOVE).pointer;
        ASSERT_LE(place.x - x, 1);
        ASSERT_EQ(place.x + place.y, 500);
        x = place.x;
    }
    POINT place{};
    EXPECT_TRUE(pointerPosition(place));
    EXPECT_EQ(place.x, 400);
}

TEST_F(Desktop, TurnsKeysAndButtonsIntoMessages)
{
    open();
    const struct {
        KeySym key;
        WPARAM code;
    } keys[] = {{XK_Escape, 0x1B}, {XK_q, 'Q'},       {XK_5, '5'},     {XK_F4, 0x73},
                {XK_Left, 0x25},   {XK_Delete, 0x2E}, {XK_KP_5, 0x0C}, {XK_Shift_R, 0x10},
                {XK_KP_Add, 0x6B}, {XK_space, 0x20},  {XK_Prior, 0x21}};
    for (const auto& [key, code] : keys) {
        user.press(key);
        EXPECT_EQ(next(WM_KEYDOWN).wParam, code) << XKeysymToString(key);
        EXPECT_EQ(next(WM_KEYUP).wParam, code) << XKeysymToString(key);
    }
    user.hold(XK_Alt_L, true);
    user.press(XK_F4);
    user.hold(XK_Alt_L, false);
    EXPECT_EQ(next(WM_SYSKEYDOWN).wParam, 0x12U);
    EXPECT_EQ(next(WM_SYSKEYDOWN).wParam, static_cast<WPARAM>(VK_F4));

    constexpr UINT pressed[] = {WM_LBUTTONDOWN, WM_MBUTTONDOWN, WM_RBUTTONDOWN};
    constexpr UINT released[] = {WM_LBUTTONUP, WM_MBUTTONUP, WM_RBUTTONUP};
    for (unsigned button = 1; button <= 3; ++button) {
        user.click(button);
        EXPECT_EQ(next(pressed[button - 1]).message, pressed[button - 1]);
        EXPECT_EQ(next(released[button - 1]).message, released[button - 1]);
    }
}

TEST_F(Desktop, KnowsAKeyInAnyLanguage)
{
    // What one key gives, unshifted and shifted, in two languages; and its virtual key.
    struct {
        KeySym symbols[4];
        WPARAM code;
    } keys[] = {
        {{XK_Cyrillic_a, XK_Cyrillic_A, XK_f, XK_F}, 'F'},
        {{XK_ampersand, XK_1, XK_ampersand, XK_1}, '1'},
        {{XK_Escape, NoSymbol, NoSymbol, NoSymbol}, 0x1B},
    };
    open();
    const KeyCode key = XKeysymToKeycode(server, XK_j);
    for (auto& [symbols, code] : keys) {
        XChangeKeyboardMapping(server, key, 4, symbols, 1);
        XTestFakeKeyEvent(server, key, True, CurrentTime);
        XTestFakeKeyEvent(server, key, False, CurrentTime);
        XSync(server, False);
        EXPECT_EQ(next(WM_KEYDOWN).wParam, code);
        XSync(connection(), False); // only with the first key did Xlib ask to hear of changes
    }
}

TEST_F(Desktop, ShowsAKeyDownHoweverShortTheTap)
{
    open();
    user.press(XK_Escape);
    XSync(connection(), False);
    UINT newest = 0;
    for (Message message; nextMessage(message);)
        newest = message.message;
    EXPECT_EQ(newest, WM_KEYDOWN);
    EXPECT_EQ(next(WM_KEYUP).wParam, static_cast<WPARAM>(VK_ESCAPE));
}

TEST_F(Desktop, HoldsAHeldKey)
{
    open();
    // Also on a server that sends a release before every repeated press.
    for (const Bool detectable : {True, False}) {
        XkbSetDetectableAutoRepeat(connection(), detectable, nullptr);
        user.hold(XK_Tab, true);
        for (int repeats = 0; repeats < 4; ++repeats)
            EXPECT_EQ(next(WM_KEYDOWN).wParam, static_cast<WPARAM>(VK_TAB));
        EXPECT_FALSE(hasCome(WM_KEYUP));
        user.hold(XK_Tab, false);
        EXPECT_EQ(next(WM_KEYUP).wParam, static_cast<WPARAM>(VK_TAB));
    }
}

TEST_F(Desktop, ReportsAWishToCloseAndTheLossOfTheWindow)
{
    const NativeWindow window = open();
    user.askToClose(window);
    EXPECT_EQ(next(WM_CLOSE).window, window);
    XDestroyWindow(server, window);
    XSync(server, False);
    EXPECT_EQ(next(WM_CLOSE).window, window);
    EXPECT_TRUE(destroyWindow(window)); // its X error harms nobody
    EXPECT_NE(open(), 0U);
}

TEST_F(Desktop, LosesTheRunningFlagHoweverTheProcessEnds)
{
    const Atom flag = XInternAtom(server, "_QUAZO_SCREENSAVER_RUNNING", False);
    const auto isSet = [&] { return XGetSelectionOwner(server, flag) != 0; };
    const pid_t saver = fork();
    if (saver == 0) {
        Size size;
        if (platform::desktop::size(size))
            setScreenSaverRunning(true);
        for (;;)
            pause();
    }
    EXPECT_TRUE(User::waitUntil(isSet));
    kill(saver, SIGKILL);
    EXPECT_TRUE(User::waitUntil([&] { return !isSet(); }));
    waitpid(saver, nullptr, 0);

    open();
    setScreenSaverRunning(true);
    EXPECT_TRUE(User::waitUntil(isSet));
    setScreenSaverRunning(false);
    EXPECT_TRUE(User::waitUntil([&] { return !isSet(); }));
}

TEST_F(Desktop, EndsTheProcessQuietlyWhenTheConnectionIsLost)
{
    const auto loseConnection = [this] {
        const NativeWindow window = open();
        const User killer;
        XKillClient(killer.connection(), window);
        XSync(killer.connection(), False);
        (void)next(WM_QUIT); // what no desktop sends
        _exit(7);
    };
    EXPECT_EXIT(loseConnection(), testing::ExitedWithCode(0), "^$");
}
