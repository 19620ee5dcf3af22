#include "platform/back_buffer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace platform {

namespace {

constexpr GLuint windowsOwn = 0; // the framebuffer that came with the window

// Saves and restores the program's bindings, and disables the scissor test in between: it clips
// blits and clears.
class BindingScope {
public:
    BindingScope() : scissorTest(glIsEnabled(GL_SCISSOR_TEST))
    {
        glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &drawFramebuffer);
        glGetIntegerv(GL_READ_FRAMEBUFFER_BINDING, &readFramebuffer);
        glGetIntegerv(GL_RENDERBUFFER_BINDING, &renderbuffer);
        glDisable(GL_SCISSOR_TEST);
    }
    ~BindingScope()
    {
        if (scissorTest != GL_FALSE)
            glEnable(GL_SCISSOR_TEST);
        glBindRenderbuffer(GL_RENDERBUFFER, static_cast<GLuint>(renderbuffer));
        glBindFramebuffer(GL_READ_FRAMEBUFFER, static_cast<GLuint>(readFramebuffer));
        glBindFramebuffer(GL_DRAW_FRAMEBUFFER, static_cast<GLuint>(drawFramebuffer));
    }
    BindingScope(const BindingScope&) = delete;
    BindingScope& operator=(const BindingScope&) = delete;

private:
    GLboolean scissorTest;
    GLint drawFramebuffer = 0, readFramebuffer = 0, renderbuffer = 0;
};

// Framebuffer objects came with OpenGL 3.0 and, under the same names, with an extension to 2.1. The
// older EXT extension has other names and no blit.
bool framebuffersOffered()
{
    const auto* version = reinterpret_cast<const char*>(glGetString(GL_VERSION));
    const auto* extensions = reinterpret_cast<const char*>(glGetString(GL_EXTENSIONS));
    return (version != nullptr && std::atoi(version) >= 3) ||
           (extensions != nullptr &&
            std::strstr(extensions, "GL_ARB_framebuffer_object") != nullptr);
}

GLint pixelParameter(GLenum name)
{
    GLint value = 0;
    glGetRenderbufferParameteriv(GL_RENDERBUFFER, name, &value);
    return value;
}

constexpr GLint channelBits(GLenum format)
{
    return format == GL_RGBA8 ? 8 : 16;
}

// A renderbuffer of this format and size, or 0. Whether the driver made it is asked of the object
// and not of glGetError, which would clear an error of the program's own; glGetError is only called
// to clear the error that a failed allocation has just raised.
GLuint makePixels(GLenum format, desktop::Size size)
{
    GLuint name = 0;
    glGenRenderbuffers(1, &name);
    glBindRenderbuffer(GL_RENDERBUFFER, name);
    glRenderbufferStorage(GL_RENDERBUFFER, format, size.width, size.height);
    if (pixelParameter(GL_RENDERBUFFER_WIDTH) == size.width &&
        pixelParameter(GL_RENDERBUFFER_HEIGHT) == size.height &&
        pixelParameter(GL_RENDERBUFFER_RED_SIZE) == channelBits(format))
        return name;
    glDeleteRenderbuffers(1, &name);
    glGetError();
    return 0;
}

void attach(GLuint framebuffer, GLuint pixels)
{
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, framebuffer);
    glFramebufferRenderbuffer(GL_DRAW_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, pixels);
}

// Two framebuffers with the same pixels, the second one bound for drawing; both 0 on failure. A
// driver that is out of memory may return names of 0, which must not be used: 0 is the window's own
// framebuffer, to which nothing can be attached.
std::array<GLuint, 2> makeFramebuffers(GLuint pixels)
{
    std::array<GLuint, 2> names{};
    glGenFramebuffers(2, names.data());
    if (names[0] == 0 || names[1] == 0) {
        glGetError(); // clears GL_OUT_OF_MEMORY
    } else {
        for (const GLuint name : names)
            attach(name, pixels);
        if (glCheckFramebufferStatus(GL_DRAW_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE)
            return names;
    }
    glDeleteFramebuffers(2, names.data());
    return {};
}

// Sets the alpha of the draw framebuffer to 1, and its colours to black where `colours` is GL_TRUE.
void clear(GLboolean colours)
{
    std::array<GLboolean, 4> mask{};
    std::array<GLfloat, 4> value{};
    glGetBooleanv(GL_COLOR_WRITEMASK, mask.data());
    glGetFloatv(GL_COLOR_CLEAR_VALUE, value.data());
    glColorMask(colours, colours, colours, GL_TRUE);
    glClearColor(0.0f, 0.0f, 0.0f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    glClearColor(value[0], value[1], value[2], value[3]);
    glColorMask(mask[0], mask[1], mask[2], mask[3]);
}

// A blit bypasses the fragment pipeline: colour mask, blending and viewport do not affect it. The
// scissor test and the read and draw buffers do.
void copy(GLuint source, desktop::Size from, GLuint target, desktop::Size to)
{
    glBindFramebuffer(GL_READ_FRAMEBUFFER, source);
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, target);
    glBlitFramebuffer(0, 0, from.width, from.height, 0, 0, to.width, to.height, GL_COLOR_BUFFER_BIT,
                      from == to ? GL_NEAREST : GL_LINEAR);
}

// A length of `from` pixels, enlarged as far as it fits into `to`: what is copied, and to what.
struct Fit {
    int source, target;
};

Fit fitted(int from, int to, double zoom)
{
    const int target = std::min(to, static_cast<int>(std::lround(from * zoom)));
    return {std::min(from, static_cast<int>(std::lround(target / zoom))), target};
}

} // namespace

bool BackBuffer::create(desktop::Size size, GLenum wantedFormat)
{
    if (!framebuffersOffered())
        return false;
    {
        const BindingScope restored;
        const GLuint made = makePixels(wantedFormat, size);
        if (made == 0)
            return false;
        const std::array<GLuint, 2> framebuffers = makeFramebuffers(made);
        if (framebuffers[0] == 0) {
            glDeleteRenderbuffers(1, &made);
            return false;
        }
        clear(GL_TRUE);
        drawTarget = framebuffers[0];
        copySource = framebuffers[1];
        pixels = made;
        format = wantedFormat;
        extent = size;
    }
    glBindFramebuffer(GL_FRAMEBUFFER, drawTarget);
    return true;
}

void BackBuffer::createBest(desktop::Size size, bool swapsCopy)
{
    [[maybe_unused]] const bool kept =
        create(size, GL_RGB16) || create(size, GL_RGBA16) || swapsCopy || create(size, GL_RGBA8);
}

void BackBuffer::fit(desktop::Size size, double zoom)
{
    if (drawTarget == 0 || size == extent)
        return;
    const BindingScope restored;
    const GLuint made = makePixels(format, size);
    if (made == 0)
        return;
    // The second framebuffer still has the old pixels: blit from these before it gets the new ones.
    attach(drawTarget, made);
    clear(GL_TRUE);
    const Fit columns = fitted(extent.width, size.width, zoom);
    const Fit rows = fitted(extent.height, size.height, zoom);
    copy(copySource, {columns.source, rows.source}, drawTarget, {columns.target, rows.target});
    attach(copySource, made);
    glDeleteRenderbuffers(1, &pixels);
    pixels = made;
    extent = size;
}

// Blending in the program writes alpha too; what it reads there has to be 1, as on a window.
void BackBuffer::makeOpaque() const
{
    if (format == GL_RGB16)
        return;
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, copySource);
    clear(GL_FALSE);
}

void BackBuffer::present() const
{
    if (drawTarget == 0)
        return;
    const BindingScope restored;
    makeOpaque();
    copy(copySource, extent, windowsOwn, extent);
}

void BackBuffer::read(std::uint32_t* memory) const
{
    if (drawTarget == 0)
        return;
    const BindingScope restored;
    makeOpaque();
    glBindFramebuffer(GL_READ_FRAMEBUFFER, copySource);
    glReadPixels(0, 0, extent.width, extent.height, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, memory);
}

} // namespace platform
