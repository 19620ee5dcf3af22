#include "app/gl_window.h"
#include "app/shell_state.h"
#include "app/window_procedure.h"
#include "tests/app/fresh_shell.h"
#include "tests/support/headless_desktop.h"

#include <gtest/gtest.h>

namespace {

// Sends one message; true when a request to quit came of it.
bool quits(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    EXPECT_EQ(glWindowProc(glWindow.window, message, wParam, lParam), 0);
    MSG next;
    return PeekMessageA(&next, nullptr, 0, 0, PM_REMOVE) && next.message == WM_QUIT;
}

} // namespace

TEST(WindowProcedure, QuitsOnCloseAndOnButtonsGoingDown)
{
    const FreshShell shell;
    ASSERT_TRUE(openGlWindow("test", 800, 600, 32));
    for (const UINT message : {WM_CLOSE, WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONDOWN})
        EXPECT_TRUE(quits(message)) << message;
    for (const UINT message : {WM_LBUTTONUP, WM_RBUTTONUP, WM_MBUTTONUP, WM_SYSKEYUP})
        EXPECT_FALSE(quits(message)) << message;
    EXPECT_TRUE(quits(WM_SYSKEYDOWN, VK_F4)); // the system's own way to close a window
}

TEST(WindowProcedure, QuitsAfterMoreThanHundredPixelsOfTravelInAnySteps)
{
    constexpr POINT places[] = {{900, -700}, {860, -640}, {860, -641}}; // 40 + 60, then 1
    const FreshShell shell;
    for (const POINT& place : places) {
        headless_desktop::setPointer(place);
        EXPECT_EQ(quits(WM_MOUSEMOVE), &place == &places[2]);
    }
    cursorTravel = {};
    for (LONG step = 0; step <= 101; ++step) {
        headless_desktop::setPointer({step % 2, 0});
        EXPECT_EQ(quits(WM_MOUSEMOVE), step == 101);
    }
}

TEST(WindowProcedure, KeepsKeysActivationAndSize)
{
    const FreshShell shell;
    for (const WPARAM key : {WPARAM{'A'}, WPARAM{VK_ESCAPE}, WPARAM{256}}) // 256 is no key
        EXPECT_FALSE(quits(WM_KEYDOWN, key));
    EXPECT_FALSE(quits(WM_KEYUP, VK_ESCAPE));
    EXPECT_TRUE(keyDown['A']);
    EXPECT_FALSE(keyDown[VK_ESCAPE]);
    constexpr struct {
        WPARAM wParam;
        bool active;
    } cases[] = {{WA_INACTIVE, true}, {0x10000, false}, {WA_ACTIVE, true}};
    for (const auto& [wParam, active] : cases) {
        EXPECT_FALSE(quits(WM_ACTIVATE, wParam));
        EXPECT_EQ(windowActive, active);
    }
    EXPECT_FALSE(quits(WM_SIZE, SIZE_RESTORED, MAKELPARAM(40000, 30000)));
    EXPECT_EQ(windowWidth, 40000);
    EXPECT_EQ(windowHeight, 30000);
}
