#include "tests/support/gl_recorder.h"

#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace {

struct Recorder {
    std::vector<std::string> calls;
    std::map<GLenum, GLint> integers;
    std::map<GLenum, std::vector<GLfloat>> floats;
    std::string extensions;
    std::vector<unsigned char> pixels;
    GLenum nextError = GL_NO_ERROR;
    GLuint lastTextureName = 0;
};

Recorder recorder;

struct NamedValue {
    GLenum value;
    const char* name;
};

#define NAMED(value)                                                                               \
    {                                                                                              \
        value, #value                                                                              \
    }

// Enumerants whose value means one thing wherever it is passed.
constexpr NamedValue enumerants[] = {
    NAMED(GL_TEXTURE_2D),
    NAMED(GL_BLEND),
    NAMED(GL_DEPTH_TEST),
    NAMED(GL_LIGHTING),
    NAMED(GL_MODELVIEW),
    NAMED(GL_PROJECTION),
    NAMED(GL_TEXTURE_MAG_FILTER),
    NAMED(GL_TEXTURE_MIN_FILTER),
    NAMED(GL_TEXTURE_WRAP_S),
    NAMED(GL_TEXTURE_WRAP_T),
    NAMED(GL_TEXTURE_ENV),
    NAMED(GL_TEXTURE_ENV_MODE),
    NAMED(GL_TEXTURE_ENV_COLOR),
    NAMED(GL_NEAREST),
    NAMED(GL_LINEAR),
    NAMED(GL_NEAREST_MIPMAP_NEAREST),
    NAMED(GL_LINEAR_MIPMAP_NEAREST),
    NAMED(GL_NEAREST_MIPMAP_LINEAR),
    NAMED(GL_LINEAR_MIPMAP_LINEAR),
    NAMED(GL_CLAMP),
    NAMED(GL_REPEAT),
    NAMED(GL_CLAMP_TO_EDGE),
    NAMED(GL_REPLACE),
    NAMED(GL_MODULATE),
    NAMED(GL_DECAL),
    NAMED(GL_SRC_COLOR),
    NAMED(GL_ONE_MINUS_SRC_COLOR),
    NAMED(GL_SRC_ALPHA),
    NAMED(GL_ONE_MINUS_SRC_ALPHA),
    NAMED(GL_DST_ALPHA),
    NAMED(GL_ONE_MINUS_DST_ALPHA),
    NAMED(GL_DST_COLOR),
    NAMED(GL_ONE_MINUS_DST_COLOR),
    NAMED(GL_SRC_ALPHA_SATURATE),
    NAMED(GL_BLEND_SRC),
    NAMED(GL_BLEND_DST),
    NAMED(GL_MAX_TEXTURE_UNITS),
    NAMED(GL_TEXTURE0_ARB),
    NAMED(GL_TEXTURE1_ARB),
    NAMED(GL_TEXTURE2_ARB),
    NAMED(GL_TEXTURE3_ARB),
    NAMED(GL_LUMINANCE),
    NAMED(GL_ALPHA),
    NAMED(GL_RGB),
    NAMED(GL_RGBA),
    NAMED(GL_UNSIGNED_BYTE),
    NAMED(GL_UNSIGNED_SHORT_5_6_5),
    NAMED(GL_VENDOR),
    NAMED(GL_EXTENSIONS),
};

// The small numbers, which mean something else in each position.
constexpr NamedValue factors[] = {NAMED(GL_ZERO), NAMED(GL_ONE)};
constexpr NamedValue primitives[] = {NAMED(GL_TRIANGLES), NAMED(GL_QUADS)};

std::string nameIn(std::span<const NamedValue> names, GLenum value)
{
    for (const NamedValue& entry : names)
        if (entry.value == value)
            return entry.name;
    char text[16];
    std::snprintf(text, sizeof text, "0x%04x", value);
    return text;
}

std::string nameOf(GLenum value)
{
    return nameIn(enumerants, value);
}

std::string nameOfFactor(GLenum value)
{
    return value <= 1 ? nameIn(factors, value) : nameOf(value);
}

std::string nameOfParameter(GLint value)
{
    return nameOf(static_cast<GLenum>(value));
}

std::string number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

std::string numbers(const GLfloat* values, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += (i == 0 ? "" : ", ") + number(values[i]);
    return text;
}

void record(const char* function, std::initializer_list<std::string> arguments)
{
    std::string line = std::string(function) + "(";
    const char* separator = "";
    for (const std::string& argument : arguments) {
        line += separator + argument;
        separator = ", ";
    }
    recorder.calls.push_back(line + ")");
}

std::size_t bytesPerPixel(GLenum format, GLenum type)
{
    if (type == GL_UNSIGNED_SHORT_5_6_5)
        return 2;
    return format == GL_RGBA ? 4 : format == GL_RGB ? 3 : 1;
}

std::string takePixels(GLsizei width, GLsizei height, GLenum format, GLenum type,
                       const void* pixels)
{
    recorder.pixels.clear();
    if (pixels == nullptr)
        return "null";
    const auto* first = static_cast<const unsigned char*>(pixels);
    const std::size_t row = static_cast<std::size_t>(width) * bytesPerPixel(format, type);
    const std::size_t pitch = (row + 3) / 4 * 4; // OpenGL's initial unpack alignment
    for (GLsizei y = 0; y < height; ++y, first += pitch)
        recorder.pixels.insert(recorder.pixels.end(), first, first + row);
    return "pixels";
}

void answerInteger(GLenum name, GLint* value)
{
    if (const auto found = recorder.integers.find(name); found != recorder.integers.end())
        *value = found->second;
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

void answer(GLenum name, std::span<const GLfloat> values)
{
    recorder.floats[name].assign(values.begin(), values.end());
}

void setExtensions(const std::string& extensions)
{
    recorder.extensions = extensions;
}

void APIENTRY activeTexture(GLenum unit)
{
    record("glActiveTextureARB", {nameOf(unit)});
}

const std::vector<unsigned char>& uploadedPixels()
{
    return recorder.pixels;
}

} // namespace gl_recorder

extern "C" {

void glEnable(GLenum capability)
{
    record("glEnable", {nameOf(capability)});
}

void glDisable(GLenum capability)
{
    record("glDisable", {nameOf(capability)});
}

void glBlendFunc(GLenum source, GLenum destination)
{
    record("glBlendFunc", {nameOfFactor(source), nameOfFactor(destination)});
}

void glClear(GLbitfield mask)
{
    record("glClear", {std::to_string(mask)});
}

void glPushAttrib(GLbitfield mask)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08x", mask);
    record("glPushAttrib", {text});
}

void glPopAttrib()
{
    record("glPopAttrib", {});
}

void glMatrixMode(GLenum mode)
{
    record("glMatrixMode", {nameOf(mode)});
}

void glPushMatrix()
{
    record("glPushMatrix", {});
}

void glPopMatrix()
{
    record("glPopMatrix", {});
}

void glLoadIdentity()
{
    record("glLoadIdentity", {});
}

void glLoadMatrixf(const GLfloat* elements)
{
    record("glLoadMatrixf", {numbers(elements, 16)});
}

void glViewport(GLint x, GLint y, GLsizei width, GLsizei height)
{
    record("glViewport", {number(x), number(y), number(width), number(height)});
}

void glColor3f(GLfloat red, GLfloat green, GLfloat blue)
{
    record("glColor3f", {number(red), number(green), number(blue)});
}

void glColor4f(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha)
{
    record("glColor4f", {number(red), number(green), number(blue), number(alpha)});
}

void glColor4fv(const GLfloat* color)
{
    record("glColor4fv", {numbers(color, 4)});
}

void glBegin(GLenum mode)
{
    record("glBegin", {nameIn(primitives, mode)});
}

void glEnd()
{
    record("glEnd", {});
}

void glVertex2i(GLint x, GLint y)
{
    record("glVertex2i", {number(x), number(y)});
}

void glVertex3f(GLfloat x, GLfloat y, GLfloat z)
{
    record("glVertex3f", {number(x), number(y), number(z)});
}

void glTexCoord2f(GLfloat s, GLfloat t)
{
    record("glTexCoord2f", {number(s), number(t)});
}

void glGenTextures(GLsizei count, GLuint* names)
{
    record("glGenTextures", {number(count)});
    for (GLsizei i = 0; i < count; ++i)
        names[i] = ++recorder.lastTextureName;
}

void glDeleteTextures(GLsizei count, const GLuint* names)
{
    record("glDeleteTextures", {number(count), number(*names)});
}

void glBindTexture(GLenum target, GLuint name)
{
    record("glBindTexture", {nameOf(target), number(name)});
}

void glTexImage2D(GLenum target, GLint level, GLint internalFormat, GLsizei width, GLsizei height,
                  GLint border, GLenum format, GLenum type, const void* pixels)
{
    record("glTexImage2D", {nameOf(target), number(level), nameOfParameter(internalFormat),
                            number(width), number(height), number(border), nameOf(format),
                            nameOf(type), takePixels(width, height, format, type, pixels)});
}

GLint gluBuild2DMipmaps(GLenum target, GLint internalFormat, GLsizei width, GLsizei height,
                        GLenum format, GLenum type, const void* pixels)
{
    record("gluBuild2DMipmaps",
           {nameOf(target), nameOfParameter(internalFormat), number(width), number(height),
            nameOf(format), nameOf(type), takePixels(width, height, format, type, pixels)});
    return 0;
}

void glTexParameteri(GLenum target, GLenum name, GLint value)
{
    record("glTexParameteri", {nameOf(target), nameOf(name), nameOfParameter(value)});
}

void glTexEnvi(GLenum target, GLenum name, GLint value)
{
    record("glTexEnvi", {nameOf(target), nameOf(name), nameOfParameter(value)});
}

void glTexEnvfv(GLenum target, GLenum name, const GLfloat* values)
{
    record("glTexEnvfv", {nameOf(target), nameOf(name), numbers(values, 4)});
}

void glGetTexParameteriv(GLenum target, GLenum name, GLint* value)
{
    record("glGetTexParameteriv", {nameOf(target), nameOf(name)});
    answerInteger(name, value);
}

void glGetTexEnviv(GLenum target, GLenum name, GLint* value)
{
    record("glGetTexEnviv", {nameOf(target), nameOf(name)});
    answerInteger(name, value);
}

void glGetTexEnvfv(GLenum target, GLenum name, GLfloat* values)
{
    record("glGetTexEnvfv", {nameOf(target), nameOf(name)});
    if (const auto found = recorder.floats.find(name); found != recorder.floats.end())
        std::memcpy(values, found->second.data(), found->second.size() * sizeof(GLfloat));
}

void glGetIntegerv(GLenum name, GLint* value)
{
    record("glGetIntegerv", {nameOf(name)});
    answerInteger(name, value);
}

const GLubyte* glGetString(GLenum name)
{
    record("glGetString", {nameOf(name)});
    return reinterpret_cast<const GLubyte*>(recorder.extensions.c_str());
}

GLenum glGetError()
{
    record("glGetError", {});
    return std::exchange(recorder.nextError, static_cast<GLenum>(GL_NO_ERROR));
}

} // extern "C"
