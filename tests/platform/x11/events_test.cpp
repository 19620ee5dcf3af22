#include "tests/platform/x11/desktop_fixture.h"

#include <X11/keysym.h>
#include <X11/XKBlib.h>

#include <string_view>

using namespace platform::desktop;

static bool xwayland = false;

// A virtual server cannot be Xwayland, which needs a compositor, so it only claims to be.
extern "C" Bool __wrap_XQueryExtension(Display*, const char* name, int*, int*, int*)
{
    return xwayland && std::string_view(name) == "XWAYLAND" ? True : False;
}

using Events = DesktopFixture;

TEST_F(Events, ShowAHeldKeyAsHeld)
{
    openAndShow();
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

TEST_F(Events, TellNoActivationByAGrabOrAFocusThatIsAnothers)
{
    openAndShow();
    EXPECT_EQ(next(WM_ACTIVATE).wParam, WA_ACTIVE);
    user.moveTo(9, 9);
    XGrabKeyboard(server, DefaultRootWindow(server), 0, GrabModeAsync, GrabModeAsync, CurrentTime);
    XUngrabKeyboard(server, CurrentTime);
    user.press(XK_a);
    EXPECT_EQ(next(WM_ACTIVATE, WM_KEYDOWN).message, WM_KEYDOWN);
    XSetInputFocus(server, PointerRoot, RevertToNone, CurrentTime);
    user.press(XK_b); // goes to the window under the pointer
    EXPECT_EQ(next(WM_ACTIVATE, WM_KEYDOWN).message, WM_ACTIVATE); // the focus is lost
    EXPECT_EQ(next(WM_ACTIVATE, WM_KEYDOWN).message, WM_KEYDOWN);
}

TEST_F(Events, StartTheWayOfThePointerWhereTheWindowAppearsUnderItButOnXwaylandWithItsFirstMove)
{
    user.moveTo(100, 100);
    for (const bool claimed : {true, false}) {
        xwayland = claimed;
        const NativeWindow window = openAndShow();
        user.moveTo(300, 300);
        EXPECT_EQ(next(WM_MOUSEMOVE).pointer.x, xwayland ? 300 : 100);
        EXPECT_TRUE(destroyWindow(window));
        user.moveTo(100, 100);
    }
}
