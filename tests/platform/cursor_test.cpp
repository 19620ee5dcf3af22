#include "tests/platform/test_window.h"

using Cursor = TestWindow;

TEST_F(Cursor, IsHiddenWhileTheCountIsNegative)
{
    headless_desktop::takeRequests();
    EXPECT_EQ(ShowCursor(FALSE), -1);
    EXPECT_EQ(ShowCursor(FALSE), -2);
    const HWND second = create();
    EXPECT_EQ(ShowCursor(TRUE), -1);
    EXPECT_EQ(ShowCursor(TRUE), 0);
    DestroyWindow(second);
    EXPECT_THAT(headless_desktop::takeRequests(),
                testing::ElementsAre("showPointer(1, hidden)",
                                     "createWindow(\"title\", 0, 0, 800, 600)",
                                     "showPointer(2, hidden)", "showPointer(1, visible)",
                                     "showPointer(2, visible)", "destroyWindow(2)"));
}
