#define GL_GLEXT_PROTOTYPES

#include "tests/platform/x11/desktop_fixture.h"

#include "platform/x11/back_buffer.h"

#include <GL/glext.h>

#include <array>
#include <cmath>
#include <initializer_list>
#include <vector>

using namespace platform::desktop;

namespace {

/// A shown window of the size of the screen with a current context.
class BackBufferOnScreen : public DesktopFixture {
protected:
    BackBufferOnScreen() : window(open(screen)), context(createContext(window))
    {
        EXPECT_TRUE(makeCurrent(window, context));
    }

    void fade() const
    {
        glEnable(GL_BLEND);
        glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
        glColor4f(0.0f, 0.0f, 0.0f, 0.1f);
        glRecti(-1, -1, 1, 1);
        glDisable(GL_BLEND);
    }

    // What a driver that exchanges its buffers may leave: anything but the picture.
    void spoilWindowsOwnBuffer() const
    {
        GLint drawTarget = 0;
        glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &drawTarget);
        glBindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
        glClearColor(1.0f, 0.0f, 1.0f, 1.0f);
        glClear(GL_COLOR_BUFFER_BIT);
        glBindFramebuffer(GL_DRAW_FRAMEBUFFER, static_cast<GLuint>(drawTarget));
    }

    NativeWindow window;
    NativeContext context;
};

void fill(float red, float green, float blue)
{
    glClearColor(red, green, blue, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT);
}

std::array<int, 4> pixelAt(int x, int y)
{
    std::array<GLubyte, 4> read{};
    glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, read.data());
    return {read[0], read[1], read[2], read[3]};
}

constexpr std::array<int, 4> black = {0, 0, 0, 255};

/// Everything of the state that showing a picture could touch.
std::vector<double> programsState()
{
    std::vector<double> state;
    for (const GLenum name : std::initializer_list<GLenum>{
             GL_SCISSOR_TEST, GL_SCISSOR_BOX, GL_BLEND, GL_COLOR_WRITEMASK, GL_COLOR_CLEAR_VALUE,
             GL_DRAW_FRAMEBUFFER_BINDING, GL_READ_FRAMEBUFFER_BINDING, GL_RENDERBUFFER_BINDING,
             GL_DRAW_BUFFER, GL_READ_BUFFER, GL_VIEWPORT, GL_ACTIVE_TEXTURE, GL_TEXTURE_2D,
             GL_TEXTURE_BINDING_2D, GL_MATRIX_MODE, GL_ATTRIB_STACK_DEPTH, GL_CURRENT_COLOR}) {
        std::array<GLdouble, 4> values{};
        glGetDoublev(name, values.data());
        state.insert(state.end(), values.begin(), values.end());
    }
    return state;
}

/// State that hinders copies and clears as much as a program's may.
void makeStateHostile()
{
    GLuint ownRenderbuffer = 0;
    glGenRenderbuffers(1, &ownRenderbuffer);
    glBindRenderbuffer(GL_RENDERBUFFER, ownRenderbuffer);
    glEnable(GL_SCISSOR_TEST);
    glScissor(1, 2, 3, 4);
    glColorMask(GL_FALSE, GL_TRUE, GL_FALSE, GL_FALSE);
    glClearColor(0.25f, 0.5f, 0.75f, 0.125f);
    glReadBuffer(GL_NONE);
}

} // namespace

TEST_F(BackBufferOnScreen, FadesEveryLevelToBlackWhateverTheSwapLeavesBehind)
{
    // Half a level of the window's 8 bits, and the halves of 16-bit levels of all frames so far:
    // 0.5 / (1 - 0.9) of them at most, each of 255 / 65535 of a level.
    constexpr double tolerance = 0.5 + 5.0 * 255.0 / 65535.0;
    constexpr int columnWidth = screen.width / 256;
    glEnable(GL_SCISSOR_TEST);
    for (int level = 0; level < 256; ++level) {
        glScissor(level * columnWidth, 0, columnWidth, screen.height);
        const float grey = static_cast<float>(level) / 255.0f;
        fill(grey, grey, grey);
    }
    glDisable(GL_SCISSOR_TEST);
    for (int frame = 1; frame <= 80; ++frame) {
        fade();
        ASSERT_TRUE(swapBuffers(window));
        spoilWindowsOwnBuffer();
        if (frame != 1 && frame != 5 && frame != 10 && frame != 20 && frame != 80)
            continue;
        glFinish();
        const User::Picture picture = user.look();
        for (int level = 0; level < 256; ++level) {
            const double wanted = frame == 80 ? 0.0 : level * std::pow(0.9, frame);
            EXPECT_NEAR(picture.brightness(level * columnWidth, 400), wanted, tolerance) << frame;
        }
    }
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(BackBufferOnScreen, ShowsAllOfThePictureAndTouchesNoState)
{
    fill(1.0f, 0.0f, 0.0f);
    makeStateHostile();
    const std::vector<double> before = programsState();
    EXPECT_TRUE(swapBuffers(window));
    EXPECT_EQ(programsState(), before);
    EXPECT_EQ(user.look().brightness(1000, 10), 255);
    EXPECT_TRUE(placeWindow(window, 0, 0, {640, 480}, false));
    EXPECT_EQ(programsState(), before);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(BackBufferOnScreen, LeavesTheProgramsErrorToTheProgram)
{
    glEnable(GL_NONE);
    EXPECT_TRUE(swapBuffers(window));
    EXPECT_TRUE(placeWindow(window, 0, 0, {640, 480}, false));
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_INVALID_ENUM));
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(BackBufferOnScreen, KeepsThePictureOverAChangeOfSizeAsFarAsItFits)
{
    EXPECT_EQ(pixelAt(5, 5), black); // from the start
    fill(0.0f, 1.0f, 0.0f);
    EXPECT_TRUE(placeWindow(window, 0, 0, {400, 300}, false));
    EXPECT_TRUE(placeWindow(window, 0, 0, {500, 600}, false));
    constexpr std::array<int, 4> green = {0, 255, 0, 255};
    EXPECT_EQ(pixelAt(399, 299), green);
    EXPECT_EQ(pixelAt(400, 299), black);
    EXPECT_EQ(pixelAt(399, 300), black);
    // What is drawn next reaches the new edges.
    fill(1.0f, 0.0f, 0.0f);
    EXPECT_EQ(pixelAt(499, 599), (std::array<int, 4>{255, 0, 0, 255}));
}

TEST_F(BackBufferOnScreen, ReadsAnAlphaOf1WithEitherFormat)
{
    for (const GLenum format : std::initializer_list<GLenum>{GL_RGB16, GL_RGBA16}) {
        platform::x11::BackBuffer picture;
        ASSERT_TRUE(picture.create({100, 100}, format));
        EXPECT_EQ(pixelAt(0, 0), black);
        fill(0.0f, 0.0f, 1.0f);
        picture.present();
        EXPECT_EQ(pixelAt(99, 99), (std::array<int, 4>{0, 0, 255, 255}));
    }
}

TEST_F(BackBufferOnScreen, RefusesASizeThatNoDriverHasMemoryFor)
{
    platform::x11::BackBuffer picture;
    EXPECT_FALSE(picture.create({1 << 20, 1 << 20}, GL_RGB16));
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    EXPECT_EQ(pixelAt(5, 5), black); // the context's own is still bound
}
