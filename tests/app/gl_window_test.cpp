#include "app/gl_window.h"
#include "app/shell_state.h"
#include "tests/app/fresh_shell.h"
#include "tests/support/headless_desktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

bool open()
{
    return openGlWindow("test", 800, 600, 32);
}

std::string errorBox(const std::string& text)
{
    return "messageBox(\"" + text + "\", \"ERROR\", 48); ";
}

std::string shutdownBox(const std::string& text)
{
    return "messageBox(\"" + text + "\", \"SHUTDOWN ERROR\", 64); ";
}

// In a process of its own: the window that it cannot destroy would be met by other tests.
[[noreturn]] void closeWithFailures()
{
    EXPECT_TRUE(open());
    requests();
    for (const char* step : {"makeCurrent", "deleteContext", "destroyWindow"})
        headless_desktop::fail(step);
    glWindow.deviceContext = reinterpret_cast<HDC>(&glWindow); // not the window's
    closeGlWindow();
    EXPECT_EQ(requests(),
              "makeCurrent(0, 0); " + shutdownBox("Release Of DC And RC Failed.") +
                  "deleteContext(1); " + shutdownBox("Release Rendering Context Failed.") +
                  shutdownBox("Release Device Context Failed.") + "destroyWindow(1); " +
                  shutdownBox("Could Not Release hWnd.") +
                  shutdownBox("Could Not Unregister Class.") + "setScreenSaverRunning(false); ");
    EXPECT_FALSE(glWindow.renderingContext || glWindow.deviceContext || glWindow.window ||
                 glWindow.instance);
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
}

} // namespace

TEST(GlWindow, OpensCoversAndClosesInOrder)
{
    const FreshShell shell;
    ASSERT_TRUE(open());
    EXPECT_EQ(windowWidth, 800);
    coverScreen(glWindow.window);
    EXPECT_EQ(windowWidth, 1024);
    EXPECT_EQ(windowHeight, 767);
    EXPECT_FALSE(open()); // the class is there already
    closeGlWindow();
    EXPECT_EQ(requests(), "createWindow(\"test\", 0, 0, 800, 600); showPointer(1, hidden); "
                          "choosePixelFormat(1, 32); setPixelFormat(1, 1); createContext(1); "
                          "makeCurrent(1, 1); showWindow(1); raiseWindow(1); focusWindow(1); "
                          "setScreenSaverRunning(true); size(); size(); "
                          "placeWindow(1, 0, 0, 1024, 767, topmost); " +
                              errorBox("Failed To Register The Window Class.") +
                              "makeCurrent(0, 0); deleteContext(1); destroyWindow(1); "
                              "setScreenSaverRunning(false); ");
}

TEST(GlWindow, FailedStepReleasesWhatWasMadeBeforeItSpeaks)
{
    const std::string saverEnds = "setScreenSaverRunning(false); ";
    const std::string windowEnds = "destroyWindow(1); " + saverEnds;
    const struct {
        std::string step, released, text;
    } cases[] = {
        {"createWindow", saverEnds, "Window Creation Error."},
        {"GetDC", windowEnds, "Can't Create A GL Device Context."},
        {"choosePixelFormat", windowEnds, "Can't Find A Suitable PixelFormat."},
        {"setPixelFormat", windowEnds, "Can't Set The PixelFormat."},
        {"createContext", windowEnds, "Can't Create A GL Rendering Context."},
        {"makeCurrent",
         shutdownBox("Release Of DC And RC Failed.") + "deleteContext(1); " + windowEnds,
         "Can't Activate The GL Rendering Context."},
    };
    for (const auto& [step, released, text] : cases) {
        FreshShell shell;
        shell.refuseDeviceContexts = step == "GetDC";
        headless_desktop::fail(step);
        EXPECT_FALSE(open());
        EXPECT_THAT(requests(), testing::EndsWith("); " + released + errorBox(text)));
        EXPECT_EQ(headless_desktop::thingsLeft(), 0u) << step;
    }
}

TEST(GlWindow, FailedReleasesAreReportedAndForgotten)
{
    const FreshShell shell;
    EXPECT_EXIT(closeWithFailures(), testing::ExitedWithCode(0), "");
}
