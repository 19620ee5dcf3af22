#pragma once

// Declares the OpenGL entry points that the platform layer itself calls, those later than 1.1
// included. libGL exports all of them. For a library that exports OpenGL 1.1 only, this is the
// place to declare function pointers of the same names, loaded once a context is current.
#define GL_GLEXT_PROTOTYPES

#include <GL/gl.h>
#include <GL/glext.h>
