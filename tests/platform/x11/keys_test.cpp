#include "tests/platform/x11/desktop_fixture.h"

#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

using namespace platform::desktop;

using Keys = DesktopFixture;

TEST_F(Keys, AreKnownInAnyLanguage)
{
    // The keysyms of a key, unshifted and shifted, in two layouts; and its virtual key.
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
    openAndShow();
    const KeyCode key = XKeysymToKeycode(server, XK_j);
    for (auto& [symbols, code] : keys) {
        XChangeKeyboardMapping(server, key, 4, symbols, 1);
        XTestFakeKeyEvent(server, key, True, CurrentTime);
        XTestFakeKeyEvent(server, key, False, CurrentTime);
        XSync(server, False);
        EXPECT_EQ(next(WM_KEYDOWN).wParam, code);
        EXPECT_EQ(next(WM_KEYUP).wParam, code);
        XSync(platform::x11::connection(), False); // Xlib reads changes of the mapping only now
    }
    user.hold(XK_Alt_L, true);
    user.press(XK_F4);
    EXPECT_EQ(next(WM_SYSKEYDOWN).wParam, 0x12U);
    EXPECT_EQ(next(WM_SYSKEYDOWN).wParam, 0x73U);
}
