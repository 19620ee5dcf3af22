#include "zrk/renderer.h"

#include "zrk/gl_scopes.h"

#include <SDL.h>

#include <array>
#include <cstdio>

namespace zrk {

namespace {

struct Corner {
    GLint x;
    GLint y;
};

constexpr Corner viewCorners[] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}; // clip space

// By code, from GL_INVALID_ENUM on.
constexpr std::array glErrorTexts = {
    "GLenum argument out of range.",          "numeric argument out of range.",
    "operation illegal in current state.",    "command would cause a stack overflow.",
    "command would cause a stack underflow.", "not enough memory left to execute command.",
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
    const GLenum position = code - GL_INVALID_ENUM;
    const char* text = position < glErrorTexts.size() ? glErrorTexts[position] : "unknown error.";
    std::fprintf(stderr, "OpenGL error code %u : %s\n", code, text);
    std::fflush(stderr);
}

} // namespace zrk
