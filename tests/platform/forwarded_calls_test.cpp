#include "tests/platform/test_window.h"
#include "tests/support/headless_desktop.h"

#include <gtest/gtest.h>

namespace {

// A window and what is needed to draw in it.
struct Drawing {
    Drawing() { descriptor.cColorBits = 32; }
    ~Drawing()
    {
        headless_desktop::reset();
        wglDeleteContext(context);
    }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    TestWindow window;
    HDC dc = GetDC(window.handle);
    HGLRC context = wglCreateContext(dc);
    PIXELFORMATDESCRIPTOR descriptor{};
};

struct ForwardedCall {
    const char* request;
    bool (*succeeds)(const Drawing&);
};

POINT pointer;

constexpr ForwardedCall forwardedCalls[] = {
    {"createWindow(\"title\", 0, 0, 800, 600)",
     [](const Drawing&) -> bool { return DestroyWindow(createTestWindow()); }},
    {"placeWindow(1, 2, 3, 640, 480, topmost)",
     [](const Drawing& drawing) -> bool {
         return SetWindowPos(drawing.window.handle, HWND_TOPMOST, 2, 3, 640, 480, 0);
     }},
    {"size()", [](const Drawing& drawing) { return GetDeviceCaps(drawing.dc, HORZRES) == 1024; }},
    {"pointerPosition()", [](const Drawing&) -> bool { return GetCursorPos(&pointer); }},
    {"choosePixelFormat(1, 32)",
     [](const Drawing& drawing) -> bool {
         return ChoosePixelFormat(drawing.dc, &drawing.descriptor);
     }},
    {"setPixelFormat(1, 7)",
     [](const Drawing& drawing) -> bool {
         return SetPixelFormat(drawing.dc, 7, &drawing.descriptor);
     }},
    {"createContext(1)",
     [](const Drawing& drawing) -> bool { return wglDeleteContext(wglCreateContext(drawing.dc)); }},
    {"makeCurrent(1, 1)",
     [](const Drawing& drawing) -> bool { return wglMakeCurrent(drawing.dc, drawing.context); }},
    {"makeCurrent(0, 0)", [](const Drawing&) -> bool { return wglMakeCurrent(nullptr, nullptr); }},
    {"swapBuffers(1)", [](const Drawing& drawing) -> bool { return SwapBuffers(drawing.dc); }},
    {"deleteContext(1)",
     [](const Drawing& drawing) -> bool { return wglDeleteContext(drawing.context); }},
    {"destroyWindow(1)",
     [](const Drawing& drawing) -> bool { return DestroyWindow(drawing.window.handle); }},
};

} // namespace

TEST(ForwardedCall, ReachesTheDesktopAndFailsWithIt)
{
    for (const auto& [request, succeeds] : forwardedCalls)
        for (const bool fails : {false, true}) {
            const Drawing drawing;
            headless_desktop::takeRequests();
            takeSent();
            const std::string line = request;
            if (fails)
                headless_desktop::fail(line.substr(0, line.find('(')));
            EXPECT_EQ(succeeds(drawing), !fails) << line;
            EXPECT_EQ(headless_desktop::takeRequests().front(), line);
            EXPECT_TRUE(!fails || takeSent().empty()) << line;
        }
}
