#pragma once

#include "zrk/gl.h"

#include <array>
#include <cstdint>
#include <span>

namespace zrk {

/// Most stages of a layer; stage i belongs to texture unit i.
inline constexpr std::uint32_t maxStages = 4;

/// Copies of OpenGL state that let layers skip calls. They stay correct as long as other code
/// restores what it enables or binds before the next `Shader::apply`. Which unit is selected is
/// the `renderer`'s business.
struct GlCaches {
    std::uint32_t enabledUnits = 0; ///< Last mask given to `setTextureUnits`.

    /// Per unit, the texture name that `apply` last bound there; -1 for none.
    std::array<std::int32_t, maxStages> boundTexture{-1, -1, -1, -1};

    bool colorChanged = false;     ///< The current colour is a color layer's.
    bool shortageReported = false; ///< The message about too few units was written.
};

/// State of the one OpenGL context. Only the functions below change it.
extern constinit GlCaches glCaches;

/// Resets the caches and what the `renderer` knows to the initial state of OpenGL. Call it whenever
/// a new context has become current. Textures and shaders loaded for an earlier context stay what
/// they are and must be loaded anew.
void beginContext();

/// Enables texturing on the units in `mask` (bit i is unit i; only units 0 and 1 count) and
/// disables it on the others. Without multitexture any non-zero mask enables the single unit.
/// Switching unit 1 on leaves it selected unless unit 0 changes too; every other change leaves unit
/// 0 selected.
void setTextureUnits(std::uint32_t mask);

/// Returns how many of `stageCount` stages can be applied: all of them, or only the first if there
/// are more stages than units. The first such shortage is reported on standard error.
std::uint32_t shownStages(std::uint32_t stageCount);

/// The cache `boundTexture`.
bool isBound(std::uint32_t unit, GLuint glName);
void noteBound(std::uint32_t unit, GLuint glName);

/// Sets the current colour for a layer. `restoreColor` makes it white again, for shaders without a
/// color layer, but leaves a colour alone that other code has set.
void setColor(std::span<const GLfloat, 4> rgba);
void restoreColor();

} // namespace zrk
