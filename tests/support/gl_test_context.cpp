#include "tests/support/gl_test_context.h"

#include <GL/glx.h>

#include <dlfcn.h>
#include <link.h>
#include <stdexcept>

namespace {

// A driver that is unloaded has no name any more by which its own leaks could be told from ours.
int keepLoaded(dl_phdr_info* module, std::size_t, void*)
{
    dlopen(module->dlpi_name, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
    return 0;
}

} // namespace

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
    dl_iterate_phdr(keepLoaded, nullptr);
    glXMakeContextCurrent(display, None, None, nullptr);
    glXDestroyContext(display, context);
    glXDestroyPbuffer(display, picture);
    XCloseDisplay(display);
}
