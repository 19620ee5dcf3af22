#pragma once

// All files above the platform get OpenGL and GLU here. On Windows their headers need the Win32
// types, whose header defines `far` and `near` as macros.
#ifdef _WIN32
#include <windows.h>
#undef far
#undef near
#endif

#include <GL/gl.h>
#include <GL/glext.h>
#include <GL/glu.h>
