#include "tests/platform/x11/desktop_fixture.h"

#include <cstdlib>
#include <string>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <X11/XKBlib.h>

using namespace platform::desktop;

using Desktop = DesktopFixture;

TEST_F(Desktop, CoversTheScreenOfAManagerAndTellsWhenItIsMinimised)
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

TEST_F(Desktop, KnowsAKeyInAnyLanguage)
{
    // What one key gives, unshifted and shifted, in two languages; and its virtual key.
    struct {
        KeySym symbols[4];
        WPARAM code;
    } keys[] = {{{XK_Cyrillic_a, XK_Cyrillic_A, XK_f, XK_F}, 'F'},
                {{XK_ampersand, XK_1, XK_ampersand, XK_1}, '1'},
                {{XK_Escape}, 0x1B},
                {{XK_F4}, 0x73},
                {{XK_Left}, 0x25},
                {{XK_Prior}, 0x21},
                {{XK_Delete}, 0x2E},
                {{XK_KP_Begin, XK_KP_5}, 0x0C},
                {{XK_KP_Add}, 0x6B},
                {{XK_Shift_R}, 0x10}};
    open();
    const KeyCode key = XKeysymToKeycode(server, XK_j);
    for (auto& [symbols, code] : keys) {
        XChangeKeyboardMapping(server, key, 4, symbols, 1);
        XTestFakeKeyEvent(server, key, True, CurrentTime);
        XTestFakeKeyEvent(server, key, False, CurrentTime);
        XSync(server, False);
        EXPECT_EQ(next(WM_KEYDOWN).wParam, code);
        EXPECT_EQ(next(WM_KEYUP).wParam, code);
        XSync(platform::x11::connection(), False); // only the first key makes Xlib hear of changes
    }
    user.hold(XK_Alt_L, true);
    user.press(XK_F4);
    EXPECT_EQ(next(WM_SYSKEYDOWN).wParam, 0x12U);
    EXPECT_EQ(next(WM_SYSKEYDOWN).wParam, 0x73U);
}

TEST_F(Desktop, HoldsAHeldKey)
{
    open();
    // Also on a server that sends a release before every repeated press.
    for (const Bool detectable : {True, False}) {
        XkbSetDetectableAutoRepeat(platform::x11::connection(), detectable, nullptr);
        user.hold(XK_Tab, true);
        for (int repeats = 0; repeats < 4; ++repeats)
            EXPECT_EQ(next(WM_KEYDOWN, WM_KEYUP).message, WM_KEYDOWN);
        user.hold(XK_Tab, false);
        EXPECT_EQ(next(WM_KEYUP).wParam, 0x09U);
    }
}

TEST_F(Desktop, TellsNoActivationByAGrabOrAFocusThatIsAnothers)
{
    open();
    EXPECT_EQ(next(WM_ACTIVATE).wParam, WA_ACTIVE);
    user.moveTo(9, 9);
    XGrabKeyboard(server, DefaultRootWindow(server), 0, GrabModeAsync, GrabModeAsync, CurrentTime);
    XUngrabKeyboard(server, CurrentTime);
    user.press(XK_a);
    EXPECT_EQ(next(WM_ACTIVATE, WM_KEYDOWN).message, WM_KEYDOWN);
    XSetInputFocus(server, PointerRoot, RevertToNone, CurrentTime);
    user.press(XK_b);                                              // comes by the pointer
    EXPECT_EQ(next(WM_ACTIVATE, WM_KEYDOWN).message, WM_ACTIVATE); // the focus is lost
    EXPECT_EQ(next(WM_ACTIVATE, WM_KEYDOWN).message, WM_KEYDOWN);
}

TEST_F(Desktop, IsTheHostsWindowWhichTheArgumentNamesBeforeTheEnvironment)
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
        EXPECT_EQ(isSet(), size == screen); // in its window the host says so
        disconnect();                       // which is all that a killed process does
        EXPECT_TRUE(User::waitUntil([&] { return !isSet(); }));
    }
}
