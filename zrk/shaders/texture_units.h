#pragma once

#include "zrk/gl.h"

#include <array>
#include <cstdint>
#include <span>

namespace zrk {

/// The most stages that a layer may have, one texture unit each.
inline constexpr std::uint32_t maxStages = 4;

/// What the layers know of OpenGL's state without asking it. It holds as long as nobody else
/// changes texturing or what is bound, or does and restores it before the next `Shader::apply`.
struct GlCaches {
    std::uint32_t enabledUnits = 0; ///< The last mask of `setTextureUnits`; bit 0 is unit 0.

    /// Per unit, the texture name that an `apply` last bound there; -1 for none.
    std::array<std::int32_t, maxStages> boundTexture{-1, -1, -1, -1};

    bool colorChanged = false;   ///< A layer's colour is current.
    bool unitSwitched = false;   ///< Another unit than 0 may be selected.
    bool shortageStated = false; ///< It was said that there are too few units.
};

/// One OpenGL context, one state. Only the functions below change it.
extern constinit GlCaches glCaches;

/// Enables texturing on the units of `mask`, of which only bits 0 and 1 count, and disables it on
/// the others. Without multitexture any unit stands for the only one. While bit 1 is off, unit 0
/// is the one selected.
void setTextureUnits(std::uint32_t mask);

/// Makes `unit` the one that texture calls address. Without multitexture there is no choice.
void selectUnit(std::uint32_t unit);

/// Selects unit 0 when `noteUnitsSwitched` was called since the last time.
void returnToFirstUnit();
void noteUnitsSwitched();

/// Which of `stageCount` stages can be shown: all, or the first alone when there are fewer units
/// than stages, which is stated on standard error, once.
std::uint32_t shownStages(std::uint32_t stageCount);

bool isBound(std::uint32_t unit, GLuint glName);
void noteBound(std::uint32_t unit, GLuint glName);

/// Sets the current colour for a layer; `restoreColor` makes it white again for shaders without
/// one. A colour that others have set stays.
void setColor(std::span<const GLfloat, 4> rgba);
void restoreColor();

} // namespace zrk
