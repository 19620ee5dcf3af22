#pragma once

#include "platform/desktop.h"
#include "platform/gl_entry_points.h"

#include <cstdint>

namespace platform {

/// A framebuffer object that the program draws on in place of the window's own back buffer, whose
/// contents are undefined after a swap and whose 8 bits a channel never fade to black. It has 16
/// bits a channel where the driver supports that, no depth buffer, and an alpha that reads 1. It
/// belongs to the context that was current when it was created, is deleted with it, and may only be
/// used while that context is current.
///
/// Every call restores the program's OpenGL state and its pending OpenGL error. How pixels are read
/// (glPixelStore, glPixelTransfer) has to be as OpenGL has it initially.
class BackBuffer {
public:
    /// Creates it, black, and binds it for drawing and reading in place of the window's. The
    /// renderbuffer's format is GL_RGB16, or, where the driver cannot render to that, GL_RGBA16 or
    /// GL_RGBA8: their alpha is set back to 1 by every `present` and `read`. False when the driver
    /// has no framebuffer objects or does not support the format.
    [[nodiscard]] bool create(desktop::Size size, GLenum wantedFormat);

    /// Creates it in the best format that the driver supports; without one the program draws on the
    /// window's own back buffer. With 8 bits a channel fading stops at a dim grey. A window whose
    /// swaps copy has 8 bits and keeps its contents without a blit, so it precedes GL_RGBA8.
    void createBest(desktop::Size size, bool swapsCopy);

    /// Changes the size. The contents, enlarged by `zoom`, keep their place at the lower left
    /// corner and are cut to the new size; new pixels are black. Without memory for the new size
    /// the old one stays.
    void fit(desktop::Size size, double zoom = 1.0);

    /// Blits the contents to the back buffer of the current window, without scaling.
    void present() const;

    /// Writes the contents to `memory` as 0xFFRRGGBB, row by row from the lowest, without gaps.
    void read(std::uint32_t* memory) const;

    /// 0 x 0 before it is created.
    [[nodiscard]] desktop::Size size() const { return extent; }

private:
    void makeOpaque() const;

    GLuint drawTarget = 0; // the framebuffer that the program draws on; 0 before create
    GLuint copySource = 0; // the same pixels, with a read buffer that the program cannot set
    GLuint pixels = 0;
    GLenum format = GL_NONE;
    desktop::Size extent;
};

} // namespace platform
