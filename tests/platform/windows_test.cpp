#include "tests/platform/test_window.h"
#include "tests/support/headless_desktop.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Window, TellsEverySizeOnce)
{
    const TestWindow window;
    EXPECT_THAT(takeSent(), ElementsAre("WM_SIZE 800 600"));
    ShowWindow(window.handle, SW_SHOW);
    EXPECT_THAT(takeSent(), ElementsAre("WM_ACTIVATE 1", "WM_SIZE 800 600"));
    ShowWindow(window.handle, SW_SHOW);
    EXPECT_THAT(takeSent(), IsEmpty());

    EXPECT_TRUE(SetWindowPos(window.handle, HWND_TOPMOST, 0, 0, 1024, 767, 0));
    EXPECT_THAT(takeSent(), ElementsAre("WM_SIZE 1024 767"));
    headless_desktop::play(WM_SIZE, SIZE_RESTORED, MAKELPARAM(1024, 767));
    headless_desktop::play(WM_SIZE, SIZE_RESTORED, MAKELPARAM(1024, 768));
    pump();
    EXPECT_THAT(takeSent(), ElementsAre("WM_SIZE 1024 768"));
}

TEST(Window, MayBeDestroyedByItsOwnProcedure)
{
    const TestWindow window(
        [](HWND handle, UINT, WPARAM, LPARAM) -> LRESULT { return DestroyWindow(handle); });
    EXPECT_EQ(window.handle, nullptr);
    EXPECT_EQ(headless_desktop::thingsLeft(), 0U);
}

TEST(Window, IsUnknownOnceDestroyed)
{
    const TestWindow window;
    const HDC destroyedContext = GetDC(window.handle);
    const HGLRC context = wglCreateContext(destroyedContext);
    EXPECT_TRUE(wglDeleteContext(context));
    EXPECT_TRUE(DestroyWindow(window.handle));
    headless_desktop::takeRequests();
    takeSent();

    const PIXELFORMATDESCRIPTOR descriptor{};
    for (const HWND handle : {window.handle, HWND{}})
        EXPECT_THAT(
            (std::array{DestroyWindow(handle), ShowWindow(handle, SW_SHOW),
                        SetForegroundWindow(handle),
                        SetWindowPos(handle, HWND_TOPMOST, 0, 0, 1, 1, 0),
                        SetWindowLongA(handle, GWL_STYLE, 5), GetWindowLongA(handle, GWL_STYLE)}),
            Each(0));
    for (const HDC dc : {destroyedContext, GetDC(window.handle)})
        EXPECT_THAT(
            (std::array{ReleaseDC(window.handle, dc), GetDeviceCaps(dc, HORZRES),
                        ChoosePixelFormat(dc, &descriptor), SetPixelFormat(dc, 1, &descriptor),
                        SwapBuffers(dc), wglMakeCurrent(dc, context), wglDeleteContext(context),
                        wglDeleteContext(wglCreateContext(dc))}),
            Each(0));
    SetFocus(window.handle);
    DefWindowProcA(window.handle, WM_SYSKEYDOWN, VK_F4, 0);
    EXPECT_THAT(headless_desktop::takeRequests(), IsEmpty());
    EXPECT_THAT(takeSent(), IsEmpty());
}

TEST(WindowClass, HasItsNameToItself)
{
    const TestWindow window;
    EXPECT_EQ(registerTestClass("TEST", TestWindow::noteMessage), 0);
    EXPECT_EQ(registerTestClass("Other", nullptr), 0);
    EXPECT_EQ(CreateWindowExA(0, "Other", "", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr),
              nullptr);
    EXPECT_FALSE(UnregisterClassA("Test", nullptr)); // its window lives
    EXPECT_FALSE(UnregisterClassA("Other", nullptr));
}

TEST(DeviceContext, BelongsToItsWindowOrToTheScreen)
{
    const TestWindow window;
    const HDC own = GetDC(window.handle);
    const HDC screen = GetDC(nullptr);
    EXPECT_EQ(GetDC(window.handle), own);
    EXPECT_EQ(GetDeviceCaps(screen, VERTRES), 768);
    EXPECT_FALSE(SwapBuffers(screen));
    EXPECT_EQ(ReleaseDC(nullptr, own), 0);
    EXPECT_EQ(ReleaseDC(window.handle, screen), 0);
    EXPECT_EQ(ReleaseDC(nullptr, screen), 1);
    EXPECT_EQ(ReleaseDC(window.handle, own), 1);
}

TEST(Cursor, IsHiddenOverEveryWindowWhileTheCountIsNegative)
{
    const TestWindow window;
    headless_desktop::takeRequests();
    EXPECT_EQ(ShowCursor(FALSE), -1);
    EXPECT_EQ(ShowCursor(FALSE), -2);
    const HWND second = createTestWindow();
    EXPECT_EQ(ShowCursor(TRUE), -1);
    EXPECT_EQ(ShowCursor(TRUE), 0);
    DestroyWindow(second);
    EXPECT_THAT(headless_desktop::takeRequests(),
                ElementsAre("showPointer(1, hidden)", "createWindow(\"title\", 0, 0, 800, 600)",
                            "showPointer(2, hidden)", "showPointer(1, visible)",
                            "showPointer(2, visible)", "destroyWindow(2)"));
}
