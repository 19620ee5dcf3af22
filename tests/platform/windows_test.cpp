#include "tests/platform/test_window.h"

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(TestWindow, IsToldEverySizeOnce)
{
    const Sent asked{WM_SIZE, MAKELPARAM(1024, 767)};
    const Sent given{WM_SIZE, MAKELPARAM(1024, 768)};
    const HWND second = create();
    EXPECT_THAT(takeSent(), ElementsAre(Sent{WM_SIZE, MAKELPARAM(800, 600)}));
    ShowWindow(second, SW_SHOW);
    ShowWindow(second, SW_SHOW);
    EXPECT_THAT(takeSent(), ElementsAre(Sent{WM_ACTIVATE, 1}, Sent{WM_SIZE, MAKELPARAM(800, 600)}));
    EXPECT_TRUE(SetWindowPos(second, HWND_TOPMOST, 0, 0, 1024, 767, 0));
    headless_desktop::resize({1024, 767});
    headless_desktop::resize({1024, 768});
    EXPECT_THAT(takeSent(), ElementsAre(asked, given));
    headless_desktop::fail("placeWindow");
    EXPECT_FALSE(SetWindowPos(second, HWND_TOPMOST, 0, 0, 1, 1, 0));
    EXPECT_THAT(takeSent(), IsEmpty());
    DestroyWindow(second);
}

TEST_F(TestWindow, IsUnknownOnceDestroyed)
{
    const HDC dc = GetDC(window);
    const HGLRC context = wglCreateContext(dc);
    EXPECT_TRUE(wglDeleteContext(context));
    EXPECT_TRUE(DestroyWindow(window));
    headless_desktop::takeRequests();
    const PIXELFORMATDESCRIPTOR format{};
    for (const int result :
         {DestroyWindow(window), ShowWindow(window, SW_SHOW), SetForegroundWindow(window),
          SetWindowPos(window, HWND_TOPMOST, 0, 0, 1, 1, 0), SetWindowLongA(window, GWL_STYLE, 5),
          ReleaseDC(window, dc), GetDeviceCaps(dc, HORZRES), ChoosePixelFormat(dc, &format),
          SetPixelFormat(dc, 1, &format), SwapBuffers(dc), wglMakeCurrent(dc, context),
          wglDeleteContext(context), wglDeleteContext(wglCreateContext(dc))})
        EXPECT_EQ(result, 0);
    SetFocus(window);
    DefWindowProcA(window, WM_SYSKEYDOWN, VK_F4, 0);
    EXPECT_THAT(headless_desktop::takeRequests(), IsEmpty());
    EXPECT_THAT(takeSent(), IsEmpty());
}
