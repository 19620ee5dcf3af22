#pragma once

#include "zrk/gl.h"

#include <string>
#include <vector>

/// Stands in for OpenGL and GLU where it is linked: every call becomes one line of text, such as
/// "glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE)", and answers as scripted.
/// Floats are printed with %g; pixels are printed as "pixels", or "null".
namespace gl_recorder {

/// Forgets the calls and all scripts; generated texture names start again at 1.
void reset();

/// The lines since `reset` or the last `takeCalls`.
const std::vector<std::string>& calls();
std::vector<std::string> takeCalls();

/// Records nothing until `reset`: no call is worth the memory that its text takes.
void pause();

/// Adds a line of the test's own, to see it in order with the calls.
void note(const std::string& line);

/// The next `glGetError` answers `code`, those after it GL_NO_ERROR.
void setNextError(GLenum code);

/// What queries of `name` answer, until the program sets it; without an answer they change nothing.
void answer(GLenum name, GLint value);

/// What glGetString(GL_EXTENSIONS) answers; "" after `reset`.
void setExtensions(const std::string& extensions);

/// Stands in for the multitexture extension's entry point: "glActiveTextureARB(GL_TEXTURE1_ARB)".
void APIENTRY activeTexture(GLenum unit);

} // namespace gl_recorder
