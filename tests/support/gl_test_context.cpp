#include "tests/support/gl_test_context.h"

#include <GL/glx.h>

#include <stdexcept>

GlTestContext::GlTestContext(int width, int height) : display(XOpenDisplay(nullptr))
{
    const int wanted[] = {
        GLX_DRAWABLE_TYPE, GLX_PBUFFER_BIT, GLX_RED_SIZE, 8, GLX_GREEN_SIZE, 8, GLX_BLUE_SIZE, 8,
        GLX_DOUBLEBUFFER,  False,           None};
    int count = 0;
    GLXFBConfig* configs = display == nullptr
                               ? nullptr
                               : glXChooseFBConfig(display, DefaultScreen(display), wanted, &count);
    if (configs == nullptr)
        throw std::runtime_error("no OpenGL to test with");
    const int size[] = {GLX_PBUFFER_WIDTH, width, GLX_PBUFFER_HEIGHT, height, None};
    picture = glXCreatePbuffer(display, configs[0], size);
    context = glXCreateNewContext(display, configs[0], GLX_RGBA_TYPE, nullptr, True);
    XFree(configs);
    if (!glXMakeContextCurrent(display, picture, picture, context))
        throw std::runtime_error("the OpenGL context cannot be made current");
}

GlTestContext::~GlTestContext()
{
    glXMakeContextCurrent(display, None, None, nullptr);
    glXDestroyContext(display, context);
    glXDestroyPbuffer(display, picture);
    XCloseDisplay(display);
}
