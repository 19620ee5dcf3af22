#include "tests/platform/x11/desktop_fixture.h"

#include "platform/back_buffer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <numeric>
#include <vector>

using namespace platform::desktop;

namespace {

bool outOfFramebuffers = false;

} // namespace

// Linked in place of the library's.
void glGenFramebuffers(GLsizei count, GLuint* names)
{
    using AnyFunction = void (*)();
    static const auto real = reinterpret_cast<AnyFunction>(glProcedure("glGenFramebuffers"));
    if (outOfFramebuffers)
        std::fill_n(names, count, 0);
    else
        reinterpret_cast<PFNGLGENFRAMEBUFFERSPROC>(real)(count, names);
}

namespace {

class BackBuffer : public DesktopFixture {
protected:
    NativeWindow window = openAndShow();
};

void fill(float red, float green, float blue)
{
    glClearColor(red, green, blue, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT);
}

// The window's back buffer as a driver that exchanges buffers may leave it: with anything in it.
void spoilWindowsOwnBuffer()
{
    GLint drawTarget = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &drawTarget);
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
    fill(1.0f, 0.0f, 1.0f);
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, static_cast<GLuint>(drawTarget));
}

using Pixel = std::array<GLubyte, 4>;
constexpr Pixel black = {0, 0, 0, 255};

Pixel pixelAt(int x, int y)
{
    Pixel read{};
    glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, read.data());
    return read;
}

/// The OpenGL state that creating, resizing and blitting could change.
std::vector<double> programsState()
{
    std::vector<double> state;
    for (const GLenum name : std::initializer_list<GLenum>{
             GL_SCISSOR_TEST, GL_COLOR_WRITEMASK, GL_COLOR_CLEAR_VALUE, GL_DRAW_BUFFER,
             GL_READ_BUFFER, GL_VIEWPORT, GL_DRAW_FRAMEBUFFER_BINDING, GL_READ_FRAMEBUFFER_BINDING,
             GL_RENDERBUFFER_BINDING}) {
        std::array<GLdouble, 4> values{};
        glGetDoublev(name, values.data());
        state.insert(state.end(), values.begin(), values.end());
    }
    return state;
}

} // namespace

TEST_F(BackBuffer, FadesEveryLevelToBlackWhateverTheSwapLeavesBehind)
{
    // Rounding errors: half a level in the window's 8 bits, and in each frame half a level of 16
    // bits, which sums up to 0.5 / (1 - 0.9) of these, 255 / 65535 of an 8-bit level each. After 80
    // frames less than 0.06 of a level is expected, so that only 0 is within the tolerance.
    constexpr double tolerance = 0.5 + 5.0 * 255.0 / 65535.0;
    std::array<GLubyte, 256> levels{};
    std::iota(levels.begin(), levels.end(), GLubyte{0});
    glRasterPos2i(-1, -1);
    glDrawPixels(256, 1, GL_LUMINANCE, GL_UNSIGNED_BYTE, levels.data());
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    glColor4f(0.0f, 0.0f, 0.0f, 0.1f);
    int frame = 0;
    for (const int lookedAt : {1, 5, 10, 20, 80}) {
        for (; frame < lookedAt; ++frame) {
            glRecti(-1, -1, 1, 1);
            ASSERT_TRUE(swapBuffers(window));
            spoilWindowsOwnBuffer();
        }
        const User::Picture picture = user.look();
        for (const int level : levels)
            EXPECT_NEAR(picture.brightness(level, 599), level * std::pow(0.9, lookedAt), tolerance);
    }
}

TEST_F(BackBuffer, ShowsAllOfThePictureAndTouchesNoState)
{
    fill(1.0f, 0.0f, 0.0f);
    // State that affects blits and clears, and a pending error.
    glEnable(GL_SCISSOR_TEST);
    glScissor(1, 2, 3, 4);
    glColorMask(GL_FALSE, GL_TRUE, GL_FALSE, GL_FALSE);
    glReadBuffer(GL_NONE);
    glEnable(GL_NONE);
    const std::vector<double> before = programsState();
    EXPECT_TRUE(swapBuffers(window));
    EXPECT_EQ(user.look().brightness(799, 0), 255);
    EXPECT_TRUE(placeWindow(window, 0, 0, {640, 480}, false));
    EXPECT_EQ(programsState(), before);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_INVALID_ENUM)); // the program's own
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(BackBuffer, KeepsThePictureOverAChangeOfSizeAsFarAsItFits)
{
    EXPECT_EQ(pixelAt(5, 5), black);
    fill(0.0f, 1.0f, 0.0f);
    EXPECT_TRUE(placeWindow(window, 0, 0, {400, 300}, false));
    EXPECT_TRUE(placeWindow(window, 0, 0, {500, 600}, false));
    EXPECT_EQ(pixelAt(399, 299), (Pixel{0, 255, 0, 255}));
    EXPECT_EQ(pixelAt(400, 299), black);
    EXPECT_EQ(pixelAt(399, 300), black);
    fill(1.0f, 0.0f, 0.0f); // reaches the new edges
    EXPECT_EQ(pixelAt(499, 599), (Pixel{255, 0, 0, 255}));

    platform::BackBuffer picture;
    ASSERT_TRUE(picture.create({100, 100}, GL_RGB16));
    fill(0.0f, 0.0f, 1.0f);
    picture.fit({300, 80}, 0.5); // enlarged by a half
    EXPECT_EQ(pixelAt(49, 49), (Pixel{0, 0, 255, 255}));
    EXPECT_EQ(pixelAt(50, 49), black);
    picture.fit({90, 90}, 3.0);
    EXPECT_EQ(pixelAt(89, 89), (Pixel{0, 0, 255, 255}));

    XResizeWindow(server, window, 640, 480);
    XSync(server, False);
    EXPECT_EQ(next(WM_SIZE).client, (Size{640, 480})); // the last of all
}

TEST_F(BackBuffer, ReadsAnAlphaOf1InAFormatWithAlphaToo)
{
    for (const GLenum format : std::initializer_list<GLenum>{GL_RGBA16, GL_RGBA8}) {
        platform::BackBuffer picture;
        ASSERT_TRUE(picture.create({100, 100}, format));
        fill(0.0f, 0.0f, 1.0f);
        picture.present();
        EXPECT_EQ(pixelAt(99, 99), (Pixel{0, 0, 255, 255}));
    }
}

TEST_F(BackBuffer, IsNotCreatedWithoutMemoryForItsFramebuffers)
{
    const std::vector<double> before = programsState();
    platform::BackBuffer none;
    outOfFramebuffers = true;
    EXPECT_FALSE(none.create({100, 100}, GL_RGB16));
    outOfFramebuffers = false;
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    EXPECT_EQ(programsState(), before);
}
