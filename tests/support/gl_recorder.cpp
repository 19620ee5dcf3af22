#include "tests/support/gl_recorder.h"

#include "tests/support/call_text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <initializer_list>
#include <map>
#include <utility>

namespace {

struct Recorder {
    std::vector<std::string> calls;
    bool paused = false;
    std::map<GLenum, GLint> integers;
    std::array<GLfloat, 4> envColor{};
    std::string extensions;
    GLenum nextError = GL_NO_ERROR;
    GLuint lastTextureName = 0;
};

Recorder recorder;

std::map<GLenum, std::string> pairUp(std::initializer_list<GLenum> values, const char* list)
{
    std::map<GLenum, std::string> names;
    std::istringstream rest(list);
    for (const GLenum value : values)
        std::getline(rest >> std::ws, names[value], ',');
    return names;
}

// A list of enumerants by value and, as it is written here, by name.
#define NAMES(...) pairUp({__VA_ARGS__}, #__VA_ARGS__)

// No two of those that are recorded share a value.
const std::map<GLenum, std::string> enumerants = NAMES(
    GL_ZERO, GL_ONE, GL_TRIANGLES, GL_QUADS, GL_TEXTURE_2D, GL_BLEND, GL_DEPTH_TEST, GL_LIGHTING,
    GL_MODELVIEW, GL_PROJECTION, GL_TEXTURE_MAG_FILTER, GL_TEXTURE_MIN_FILTER, GL_TEXTURE_WRAP_S,
    GL_TEXTURE_WRAP_T, GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_TEXTURE_ENV_COLOR, GL_NEAREST,
    GL_LINEAR, GL_NEAREST_MIPMAP_NEAREST, GL_LINEAR_MIPMAP_NEAREST, GL_NEAREST_MIPMAP_LINEAR,
    GL_LINEAR_MIPMAP_LINEAR, GL_CLAMP, GL_REPEAT, GL_CLAMP_TO_EDGE, GL_REPLACE, GL_MODULATE,
    GL_DECAL, GL_SRC_COLOR, GL_ONE_MINUS_SRC_COLOR, GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA,
    GL_DST_ALPHA, GL_ONE_MINUS_DST_ALPHA, GL_DST_COLOR, GL_ONE_MINUS_DST_COLOR,
    GL_SRC_ALPHA_SATURATE, GL_BLEND_SRC, GL_BLEND_DST, GL_MAX_TEXTURE_UNITS, GL_TEXTURE0_ARB,
    GL_TEXTURE1_ARB, GL_TEXTURE2_ARB, GL_TEXTURE3_ARB, GL_LUMINANCE, GL_ALPHA, GL_RGB, GL_RGBA,
    GL_UNSIGNED_BYTE, GL_UNSIGNED_SHORT_5_6_5, GL_VENDOR, GL_EXTENSIONS);

std::string hexadecimal(GLenum value, int digits)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%0*x", digits, value);
    return text;
}

std::string nameOf(GLenum value)
{
    const auto found = enumerants.find(value);
    return found == enumerants.end() ? hexadecimal(value, 4) : found->second;
}

std::string nameOf(GLint value)
{
    return nameOf(static_cast<GLenum>(value));
}

std::string listOf(const GLfloat* values, int count)
{
    std::ostringstream text;
    for (int i = 0; i < count; ++i)
        text << (i == 0 ? "" : ", ") << values[i];
    return text.str();
}

template <typename... Parameters>
void record(const char* function, const Parameters&... parameters)
{
    if (!recorder.paused)
        recorder.calls.push_back(callText(function, parameters...));
}

/// Keeps a value that OpenGL is given, to answer it when asked.
template <typename Value>
Value kept(GLenum name, Value value)
{
    recorder.integers[name] = static_cast<GLint>(value);
    return value;
}

GLenum answered(GLenum name, GLint* value)
{
    if (const auto found = recorder.integers.find(name); found != recorder.integers.end())
        *value = found->second;
    return name;
}

std::string pixelsOrNull(const void* pixels)
{
    return pixels == nullptr ? "null" : "pixels";
}

} // namespace

namespace gl_recorder {

void reset()
{
    recorder = Recorder();
}

const std::vector<std::string>& calls()
{
    return recorder.calls;
}

void pause()
{
    recorder.paused = true;
}

std::vector<std::string> takeCalls()
{
    return std::exchange(recorder.calls, {});
}

void note(const std::string& line)
{
    recorder.calls.push_back(line);
}

void setNextError(GLenum code)
{
    recorder.nextError = code;
}

void answer(GLenum name, GLint value)
{
    recorder.integers[name] = value;
}

void setExtensions(const std::string& extensions)
{
    recorder.extensions = extensions;
}

void APIENTRY activeTexture(GLenum unit)
{
    record("glActiveTextureARB", nameOf(unit));
}

} // namespace gl_recorder

// A function of OpenGL's that does nothing but leave its line.
#define RECORDED(function, signature, ...)                                                         \
    void function signature                                                                        \
    {                                                                                              \
        record(#function __VA_OPT__(, ) __VA_ARGS__);                                              \
    }

extern "C" {

RECORDED(glEnable, (GLenum capability), nameOf(capability))
RECORDED(glDisable, (GLenum capability), nameOf(capability))
RECORDED(glBlendFunc, (GLenum source, GLenum target), nameOf(kept(GL_BLEND_SRC, source)),
         nameOf(kept(GL_BLEND_DST, target)))
RECORDED(glClear, (GLbitfield mask), mask)
RECORDED(glPushAttrib, (GLbitfield mask), hexadecimal(mask, 8))
RECORDED(glPopAttrib, ())
RECORDED(glMatrixMode, (GLenum mode), nameOf(mode))
RECORDED(glPushMatrix, ())
RECORDED(glPopMatrix, ())
RECORDED(glLoadIdentity, ())
RECORDED(glLoadMatrixf, (const GLfloat* elements), listOf(elements, 16))
RECORDED(glViewport, (GLint x, GLint y, GLsizei width, GLsizei height), x, y, width, height)
RECORDED(glColor3f, (GLfloat red, GLfloat green, GLfloat blue), red, green, blue)
RECORDED(glColor4f, (GLfloat r, GLfloat g, GLfloat b, GLfloat a), r, g, b, a)
RECORDED(glColor4fv, (const GLfloat* color), listOf(color, 4))
RECORDED(glBegin, (GLenum mode), nameOf(mode))
RECORDED(glEnd, ())
RECORDED(glVertex2i, (GLint x, GLint y), x, y)
RECORDED(glVertex3f, (GLfloat x, GLfloat y, GLfloat z), x, y, z)
RECORDED(glTexCoord2f, (GLfloat s, GLfloat t), s, t)
RECORDED(glDeleteTextures, (GLsizei count, const GLuint* names), count, *names)
RECORDED(glBindTexture, (GLenum target, GLuint name), nameOf(target), name)
RECORDED(glTexParameteri, (GLenum target, GLenum name, GLint value), nameOf(target), nameOf(name),
         nameOf(kept(name, value)))
RECORDED(glTexEnvi, (GLenum target, GLenum name, GLint value), nameOf(target), nameOf(name),
         nameOf(kept(name, value)))
RECORDED(glTexEnvfv, (GLenum target, GLenum name, const GLfloat* values), nameOf(target),
         nameOf(name), listOf(std::copy_n(values, 4, recorder.envColor.begin()) - 4, 4))
RECORDED(glGetIntegerv, (GLenum name, GLint* value), nameOf(answered(name, value)))
RECORDED(glGetTexParameteriv, (GLenum target, GLenum name, GLint* value), nameOf(target),
         nameOf(answered(name, value)))
RECORDED(glGetTexEnviv, (GLenum target, GLenum name, GLint* value), nameOf(target),
         nameOf(answered(name, value)))
RECORDED(glGetTexEnvfv, (GLenum target, GLenum name, GLfloat* values), nameOf(target),
         (std::ranges::copy(recorder.envColor, values), nameOf(name)))

RECORDED(glTexImage2D,
         (GLenum target, GLint level, GLint internalFormat, GLsizei width, GLsizei height,
          GLint border, GLenum format, GLenum type, const void* pixels),
         nameOf(target), level, nameOf(internalFormat), width, height, border, nameOf(format),
         nameOf(type), pixelsOrNull(pixels))

GLint gluBuild2DMipmaps(GLenum target, GLint internalFormat, GLsizei width, GLsizei height,
                        GLenum format, GLenum type, const void* pixels)
{
    record("gluBuild2DMipmaps", nameOf(target), nameOf(internalFormat), width, height,
           nameOf(format), nameOf(type), pixelsOrNull(pixels));
    return 0;
}

void glGenTextures(GLsizei count, GLuint* names)
{
    record("glGenTextures", count);
    for (GLsizei i = 0; i < count; ++i)
        names[i] = ++recorder.lastTextureName;
}

const GLubyte* glGetString(GLenum name)
{
    record("glGetString", nameOf(name));
    return reinterpret_cast<const GLubyte*>(recorder.extensions.c_str());
}

GLenum glGetError()
{
    record("glGetError");
    return std::exchange(recorder.nextError, static_cast<GLenum>(GL_NO_ERROR));
}

} // extern "C"
