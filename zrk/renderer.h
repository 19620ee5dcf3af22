#pragma once

#include "zrk/gl.h"

#include <cstdint>

namespace zrk {

/// What the library knows of the OpenGL it draws with, and the drawing that belongs to no shader.
/// There is one, `renderer`; it is built last and destroyed first of all long-lived objects.
class Renderer {
public:
    /// Larger images are shrunk to this, in pixels.
    std::uint32_t maxTextureWidth = 512;
    std::uint32_t maxTextureHeight = 512;

    /// True when `glActiveTextureARB` may be called: the driver has GL_ARB_multitexture and at
    /// least two units.
    bool multitextureAvailable = false;
    PFNGLACTIVETEXTUREARBPROC glActiveTextureARB = nullptr;

    /// Units that `glActiveTextureARB` may select; 1 while multitexture is not available.
    std::uint32_t textureUnits = 1;

    /// A unit beyond the first has been selected, as only layers of several textures do. Until then
    /// no other unit can be enabled, and fading needs to look at none.
    bool severalUnitsUsed = false;

    Renderer() = default;
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    /// Shuts SDL down. Nobody starts it: its surfaces and image decoders work without.
    ~Renderer();

    /// Clears what `clearMask` names, then draws a black quad of opacity `alpha` over the whole
    /// viewport. With the blend function (GL_ONE, GL_ONE_MINUS_SRC_ALPHA) the picture is left at
    /// 1 - `alpha` of its brightness. No unit textures the quad. Afterwards the model-view matrix
    /// is current, depth testing is on, and the current colour is (0, 0, 0, `alpha`).
    void fadeScreen(float alpha, GLbitfield clearMask);

    /// Writes one line about `code`, a result of `glGetError`, to standard error.
    void reportGlError(GLenum code);
};

extern Renderer renderer;

} // namespace zrk
