#pragma once

// The one place where OpenGL and GLU come in. On Windows their headers need the Win32 types.
#ifdef _WIN32
#include <windows.h>
#undef far
#undef near
#endif

#include <GL/gl.h>
#include <GL/glext.h>
#include <GL/glu.h>
