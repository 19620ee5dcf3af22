#pragma once

// The OpenGL entry points that the platform layer itself calls. Here the library exports all of
// them. A port whose library ends with OpenGL 1.1 declares pointers of the same names in this
// place, which it fills once a context is current.
#define GL_GLEXT_PROTOTYPES

#include <GL/gl.h>
#include <GL/glext.h>
