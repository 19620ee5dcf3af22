#include <gtest/gtest.h> // before Xlib, which makes macros of its names

#include "platform/x11/software_renderer.h"
#include "tests/platform/x11/desktop_fixture.h"

#include <GL/gl.h>

#include <cstdlib>

using namespace platform::desktop;

namespace {

bool drawsWithoutFramebuffers()
{
    setenv("MESA_GL_VERSION_OVERRIDE", "2.1", 1);
    setenv("MESA_EXTENSION_OVERRIDE", "-GL_ARB_framebuffer_object", 1);
    const VirtualDisplay display;
    const User user;
    const NativeWindow window = createWindow("title", 0, 0, {200, 100});
    showWindow(window);
    const bool current = makeCurrent(window, createContext(window));
    glClearColor(0.0f, 1.0f, 0.0f, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    return current && glGetString(GL_VERSION)[0] == '2' && swapBuffers(window) &&
           glProcedure("glActiveTextureARB") != nullptr &&
           platform::x11::drawsInSoftware(platform::x11::connection()) &&
           glGetError() == GL_NO_ERROR && user.look().brightness(199, 99) == 255;
}

bool makesNoContext(const char* screen, int format)
{
    setenv("LIBGL_ALWAYS_INDIRECT", "1", 1);
    const VirtualDisplay display(screen);
    const NativeWindow window = createWindow("title", 0, 0, {200, 100});
    return window != 0 && choosePixelFormat(window, {}) == format &&
           createContext(window) == nullptr;
}

} // namespace

TEST(ContextsDeathTest, MakeDoWithWhatTheDriverHas)
{
    // A driver reads its environment once per process.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const testing::ExitedWithCode success(0);
    EXPECT_EXIT(_exit(drawsWithoutFramebuffers() ? 0 : 1), success, "");
    EXPECT_EXIT(_exit(makesNoContext("640x480x24", 1) ? 0 : 1), success, "");
    EXPECT_EXIT(_exit(makesNoContext("640x480x8", 0) ? 0 : 1), success, ""); // a palette
}
