#include "zrk/shaders/texture_units.h"

#include "zrk/renderer.h"

#include <cstdio>

namespace zrk {

constinit GlCaches glCaches;

namespace {

constexpr std::uint32_t firstUnit = 1; // bit masks
constexpr std::uint32_t secondUnit = 2;

void switchTexturing(bool on)
{
    if (on)
        glEnable(GL_TEXTURE_2D);
    else
        glDisable(GL_TEXTURE_2D);
}

// Enabling belongs to the selected unit, so each unit is selected before it is switched.
void switchUnits(std::uint32_t mask, std::uint32_t changed)
{
    const bool second = (mask & secondUnit) != 0;
    if ((changed & secondUnit) != 0) {
        renderer.selectUnit(1);
        switchTexturing(second);
        if (!second)
            renderer.selectUnit(0);
    }
    if ((changed & firstUnit) != 0) {
        renderer.selectUnit(0);
        switchTexturing((mask & firstUnit) != 0);
    }
}

} // namespace

void beginContext()
{
    renderer.forgetContext();
    glCaches = {.shortageReported = glCaches.shortageReported}; // reported once per process
}

void setTextureUnits(std::uint32_t mask)
{
    // The mask is noted in every case, also where 3 after 1 means the same to a single unit.
    const std::uint32_t before = glCaches.enabledUnits;
    if (renderer.multitextureAvailable)
        switchUnits(mask, mask ^ before);
    else if ((mask != 0) != (before != 0))
        switchTexturing(mask != 0);
    glCaches.enabledUnits = mask;
}

std::uint32_t shownStages(std::uint32_t stageCount)
{
    if (stageCount <= renderer.textureUnits)
        return stageCount;
    if (!glCaches.shortageReported)
        std::fputs("quazo: too few texture units: only the first of several textures is shown\n",
                   stderr);
    glCaches.shortageReported = true;
    return 1;
}

bool isBound(std::uint32_t unit, GLuint glName)
{
    // Signed, so that -1 is no texture's name. OpenGL hands names out from 1 upwards.
    return glCaches.boundTexture[unit] == static_cast<std::int32_t>(glName);
}

void noteBound(std::uint32_t unit, GLuint glName)
{
    glCaches.boundTexture[unit] = static_cast<std::int32_t>(glName);
}

void setColor(std::span<const GLfloat, 4> rgba)
{
    glColor4fv(rgba.data());
    glCaches.colorChanged = true;
}

void restoreColor()
{
    constexpr GLfloat white[] = {1.0f, 1.0f, 1.0f, 1.0f};
    if (glCaches.colorChanged)
        glColor4fv(white);
    glCaches.colorChanged = false;
}

} // namespace zrk
