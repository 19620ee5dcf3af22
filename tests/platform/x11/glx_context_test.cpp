#include "tests/platform/x11/desktop_fixture.h"

#include <GL/gl.h>

#include <chrono>
#include <cstdlib>

using namespace platform::desktop;
using testing::ExitedWithCode;

namespace {

PIXELFORMATDESCRIPTOR withDepth(BYTE depthBits)
{
    PIXELFORMATDESCRIPTOR descriptor{};
    descriptor.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    descriptor.cColorBits = 32;
    descriptor.cDepthBits = depthBits;
    return descriptor;
}

class GlxContext : public DesktopFixture {};

/// For what a driver reads once in the life of a process.
class GlxContextDeathTest : public testing::Test {
protected:
    GlxContextDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

[[noreturn]] void exitWith(bool good)
{
    disconnect();
    std::exit(good ? 0 : 1);
}

[[noreturn]] void drawWithoutFramebuffers()
{
    setenv("MESA_GL_VERSION_OVERRIDE", "2.1", 1);
    setenv("MESA_EXTENSION_OVERRIDE", "-GL_ARB_framebuffer_object", 1);
    const VirtualDisplay display;
    const User user;
    const NativeWindow window = createWindow("title", 0, 0, {200, 100});
    showWindow(window);
    bool good = makeCurrent(window, createContext(window));
    good = good && glGetString(GL_VERSION)[0] == '2';
    glClearColor(0.0f, 1.0f, 0.0f, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    good = good && swapBuffers(window) && placeWindow(window, 0, 0, {300, 100}, false) &&
           swapBuffers(window) && glGetError() == GL_NO_ERROR;
    exitWith(good && user.look().brightness(199, 99) == 255);
}

[[noreturn]] void refuseIndirectContext()
{
    setenv("LIBGL_ALWAYS_INDIRECT", "1", 1);
    const VirtualDisplay display;
    const NativeWindow window = createWindow("title", 0, 0, {200, 100});
    exitWith(window != 0 && createContext(window) == nullptr);
}

[[noreturn]] void findNoFormat()
{
    const VirtualDisplay display("640x480x8"); // a screen with a palette
    const NativeWindow window = createWindow("title", 0, 0, {200, 100});
    exitWith(window != 0 && choosePixelFormat(window, withDepth(0)) == 0 &&
             !setPixelFormat(window, 1) && createContext(window) == nullptr);
}

} // namespace

TEST_F(GlxContext, GoesThroughItsWholeLife)
{
    const NativeWindow window = open();
    const int format = choosePixelFormat(window, withDepth(0));
    EXPECT_EQ(format, 1);
    EXPECT_EQ(choosePixelFormat(window, withDepth(16)), 0);
    EXPECT_TRUE(setPixelFormat(window, format));
    EXPECT_FALSE(setPixelFormat(window, format + 1));
    EXPECT_EQ(glProcedure("glActiveTextureARB"), nullptr); // of which context?

    const NativeContext context = createContext(window);
    ASSERT_TRUE(makeCurrent(window, context));
    EXPECT_NE(glProcedure("glActiveTextureARB"), nullptr);
    GLint depthBits = -1;
    glGetIntegerv(GL_DEPTH_BITS, &depthBits);
    EXPECT_EQ(depthBits, 0);
    EXPECT_FALSE(makeCurrent(window + 1, context));

    EXPECT_TRUE(deleteContext(context)); // current or not
    EXPECT_FALSE(deleteContext(context));
    EXPECT_TRUE(makeCurrent(0, nullptr));
    EXPECT_TRUE(destroyWindow(window));
    EXPECT_FALSE(swapBuffers(window));
    disconnect();
    // The program's textures are deleted as late as this.
    const GLuint texture = 1;
    glDeleteTextures(1, &texture);
}

TEST_F(GlxContextDeathTest, MakesDoWithWhatADriverHas)
{
    EXPECT_EXIT(drawWithoutFramebuffers(), ExitedWithCode(0), "");
    EXPECT_EXIT(refuseIndirectContext(), ExitedWithCode(0), "");
    EXPECT_EXIT(findNoFormat(), ExitedWithCode(0), "");
}
