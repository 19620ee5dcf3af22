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

} // namespace

Renderer::~Renderer()
{
    SDL_Quit();
}

void Renderer::forgetContext()
{
    multitextureAvailable = false;
    glActiveTextureARB = nullptr;
    textureUnits = 1;
    unitSwitched = false;
    severalUnitsUsed = false;
}

void Renderer::selectUnit(std::uint32_t unit)
{
    if (!multitextureAvailable)
        return;
    glActiveTextureARB(GL_TEXTURE0_ARB + unit);
    severalUnitsUsed |= unit > 0;
}

void Renderer::returnToFirstUnit()
{
    if (unitSwitched)
        selectUnit(0);
    unitSwitched = false;
}

void Renderer::noteUnitsSwitched()
{
    unitSwitched = true;
}

void Renderer::fadeScreen(float alpha, GLbitfield clearMask)
{
    glClear(clearMask);
    const AttribScope attributes(GL_LIGHTING_BIT | GL_TEXTURE_BIT);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_LIGHTING);
    disableTexturing();
    {
        const ClipSpaceScope clipSpace; // (-1, -1) to (1, 1) is the whole view
        glColor4f(0.0f, 0.0f, 0.0f, alpha);
        glBegin(GL_QUADS);
        for (const auto& [x, y] : viewCorners)
            glVertex2i(x, y);
        glEnd();
    }
    glEnable(GL_DEPTH_TEST); // belongs to an attribute group that was not saved
}

// The attribute scope restores both what is enabled and which unit is selected.
void Renderer::disableTexturing()
{
    if (!severalUnitsUsed) {
        glDisable(GL_TEXTURE_2D);
        return;
    }
    for (const std::uint32_t unit : {1u, 0u}) {
        selectUnit(unit);
        glDisable(GL_TEXTURE_2D);
    }
}

void Renderer::reportGlError(GLenum code)
{
    const auto* known = std::ranges::find(glErrorTexts, code, &GlErrorText::code);
    const char* text = known != std::end(glErrorTexts) ? known->text : "unknown error.";
    std::fprintf(stderr, "OpenGL error code %u : %s\n", code, text);
    std::fflush(stderr);
}

} // namespace zrk
