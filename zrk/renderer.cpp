#include "zrk/renderer.h"

#include "zrk/gl_scopes.h"

#include <SDL.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace zrk {

namespace {

struct Corner {
    GLint x;
    GLint y;
};

constexpr Corner viewCorners[] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}; // clip space

struct GlErrorText {
    GLenum code;
    const char* text;
};

constexpr GlErrorText glErrorTexts[] = {
    {GL_INVALID_ENUM, "GLenum argument out of range."},
    {GL_INVALID_VALUE, "numeric argument out of range."},
    {GL_INVALID_OPERATION, "operation illegal in current state."},
    {GL_STACK_OVERFLOW, "command would cause a stack overflow."},
    {GL_STACK_UNDERFLOW, "command would cause a stack underflow."},
    {GL_OUT_OF_MEMORY, "not enough memory left to execute command."},
};

// Whichever units a shader has left enabled or selected. The attribute stack brings both back.
void disableTexturing(const Renderer& with)
{
    if (!with.severalUnitsUsed) {
        glDisable(GL_TEXTURE_2D);
        return;
    }
    constexpr GLenum units[] = {GL_TEXTURE1_ARB, GL_TEXTURE0_ARB};
    for (const GLenum unit : units) {
        with.glActiveTextureARB(unit);
        glDisable(GL_TEXTURE_2D);
    }
}

} // namespace

Renderer::~Renderer()
{
    SDL_Quit();
}

void Renderer::fadeScreen(float alpha, GLbitfield clearMask)
{
    glClear(clearMask);
    const AttribScope attributes(GL_LIGHTING_BIT | GL_TEXTURE_BIT);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_LIGHTING);
    disableTexturing(*this);
    {
        const ClipSpaceScope clipSpace; // (-1, -1) to (1, 1) is the whole view
        glColor4f(0.0f, 0.0f, 0.0f, alpha);
        glBegin(GL_QUADS);
        for (const auto& [x, y] : viewCorners)
            glVertex2i(x, y);
        glEnd();
    }
    glEnable(GL_DEPTH_TEST); // the attribute scope does not cover it
}

void Renderer::reportGlError(GLenum code)
{
    const auto* known = std::ranges::find(glErrorTexts, code, &GlErrorText::code);
    const char* text = known != std::end(glErrorTexts) ? known->text : "unknown error.";
    std::fprintf(stderr, "OpenGL error code %u : %s\n", code, text);
    std::fflush(stderr);
}

} // namespace zrk
