#pragma once

#include "zrk/gl.h"

#include <cstdint>

namespace zrk {

/// Limits and texture units of the OpenGL in use, and the drawing that belongs to no shader. There
/// is one instance, `renderer`, constructed last and destroyed first of all long-lived objects.
class Renderer {
public:
    /// Images that are larger, in pixels, are shrunk to this when they are loaded.
    std::uint32_t maxTextureWidth = 512;
    std::uint32_t maxTextureHeight = 512;

    /// `glActiveTextureARB` may be called: the driver has GL_ARB_multitexture and at least two
    /// units.
    bool multitextureAvailable = false;
    PFNGLACTIVETEXTUREARBPROC glActiveTextureARB = nullptr;

    /// Number of texture units; 1 while multitexture is not available.
    std::uint32_t textureUnits = 1;

    Renderer() = default;
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    /// Calls `SDL_Quit`. Nothing initialises SDL: its surfaces and image decoders do not need it.
    ~Renderer();

    /// Returns to the values of a new renderer, for a new OpenGL context: no multitexture, and unit
    /// 0 selected.
    void forgetContext();

    /// Selects the texture unit that texture calls address, 0 being the first. Does nothing while
    /// multitexture is not available. Only this function selects units.
    void selectUnit(std::uint32_t unit);

    /// Selects unit 0 if `noteUnitsSwitched` was called since the last time.
    void returnToFirstUnit();
    void noteUnitsSwitched();

    /// Clears the buffers in `clearMask`, then draws a black quad of opacity `alpha` over the whole
    /// viewport, untextured on every unit. With the blend function (GL_ONE,
    /// GL_ONE_MINUS_SRC_ALPHA) this multiplies the picture by 1 - `alpha`. Afterwards the
    /// model-view matrix is current, depth testing is on, and the current colour is
    /// (0, 0, 0, `alpha`).
    void fadeScreen(float alpha, GLbitfield clearMask);

    /// Writes a line with the meaning of `code`, a result of `glGetError`, to standard error.
    void reportGlError(GLenum code);

private:
    void disableTexturing();

    bool unitSwitched = false;     // a unit other than 0 may be selected
    bool severalUnitsUsed = false; // a unit other than 0 has ever been selected
};

extern Renderer renderer;

} // namespace zrk
