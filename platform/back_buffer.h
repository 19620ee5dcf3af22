#pragma once

#include "platform/desktop.h"
#include "platform/gl_entry_points.h"

namespace platform {

/// What the program draws on in place of a window's own back buffer, whose picture a
/// swap need not keep and whose 8 bits never fade to black. It has 16 bits a channel where the
/// driver can draw on that, no depth, and an alpha that reads 1. It belongs to the context that was
/// current when it was made, goes with it, and may be used only while that one is current.
///
/// Every call leaves the program's OpenGL state as it was and no error of its own behind.
class BackBuffer {
public:
    /// Makes it black and binds it as the framebuffer to draw on and to read from, in place of
    /// the window's. `wantedFormat` is GL_RGB16, or for a driver that cannot draw on that GL_RGBA16
    /// or at the worst GL_RGBA8: their alpha is made 1 again by every `present`. False when the
    /// driver cannot do it.
    [[nodiscard]] bool create(desktop::Size size, GLenum wantedFormat);

    /// Changes the size. The picture stays at its lower left corner as far as it fits; what is
    /// new is black. Without memory for the new size the old one stays.
    void fit(desktop::Size size);

    /// Copies the picture to the back buffer of the window that is current, without scaling.
    void present() const;

private:
    GLuint drawTarget = 0; // what the program knows as its framebuffer; 0 before create
    GLuint copySource = 0; // the same pixels, out of reach of the program's draw and read buffer
    GLuint pixels = 0;
    GLenum format = GL_NONE;
    desktop::Size extent;
};

} // namespace platform
