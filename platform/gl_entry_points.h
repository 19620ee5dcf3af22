#pragma once

// Declares the OpenGL entry points that the platform layer itself calls, those later than 1.1
// included. libGL exports all of them. Windows exports OpenGL 1.1 only: there the later ones are
// function pointers of the same names, loaded once a context is current.
#ifdef _WIN32
#include "platform/win32.h"
#else
#define GL_GLEXT_PROTOTYPES
#endif

#include <GL/gl.h>
#include <GL/glext.h>

#ifdef _WIN32

// Each later entry point with its type.
#define QUAZO_LATER_GL_ENTRY_POINTS(ENTRY)                                                         \
    ENTRY(glBindFramebuffer, PFNGLBINDFRAMEBUFFERPROC)                                             \
    ENTRY(glBindRenderbuffer, PFNGLBINDRENDERBUFFERPROC)                                           \
    ENTRY(glBlitFramebuffer, PFNGLBLITFRAMEBUFFERPROC)                                             \
    ENTRY(glCheckFramebufferStatus, PFNGLCHECKFRAMEBUFFERSTATUSPROC)                               \
    ENTRY(glDeleteFramebuffers, PFNGLDELETEFRAMEBUFFERSPROC)                                       \
    ENTRY(glDeleteRenderbuffers, PFNGLDELETERENDERBUFFERSPROC)                                     \
    ENTRY(glFramebufferRenderbuffer, PFNGLFRAMEBUFFERRENDERBUFFERPROC)                             \
    ENTRY(glGenFramebuffers, PFNGLGENFRAMEBUFFERSPROC)                                             \
    ENTRY(glGenRenderbuffers, PFNGLGENRENDERBUFFERSPROC)                                           \
    ENTRY(glGetRenderbufferParameteriv, PFNGLGETRENDERBUFFERPARAMETERIVPROC)                       \
    ENTRY(glRenderbufferStorage, PFNGLRENDERBUFFERSTORAGEPROC)

#define QUAZO_DECLARE(name, Type) extern Type name;
QUAZO_LATER_GL_ENTRY_POINTS(QUAZO_DECLARE)
#undef QUAZO_DECLARE

#endif
