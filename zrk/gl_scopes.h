#pragma once

#include "zrk/gl.h"

namespace zrk {

/// Keeps the attribute groups in `mask` for its lifetime.
class AttribScope {
public:
    explicit AttribScope(GLbitfield mask) { glPushAttrib(mask); }
    AttribScope(const AttribScope&) = delete;
    AttribScope& operator=(const AttribScope&) = delete;
    ~AttribScope() { glPopAttrib(); }
};

/// Makes the model-view and projection matrices identities for its lifetime: vertices are given
/// in clip space. The projection matrix is current within it, the model-view matrix after it.
class ClipSpaceScope {
public:
    ClipSpaceScope()
    {
        constexpr GLenum matrices[] = {GL_MODELVIEW, GL_PROJECTION};
        for (const GLenum matrix : matrices) {
            glMatrixMode(matrix);
            glPushMatrix();
            glLoadIdentity();
        }
    }

    ClipSpaceScope(const ClipSpaceScope&) = delete;
    ClipSpaceScope& operator=(const ClipSpaceScope&) = delete;

    /// Whoever drew within it left the projection matrix current.
    ~ClipSpaceScope()
    {
        glPopMatrix();
        glMatrixMode(GL_MODELVIEW);
        glPopMatrix();
    }
};

} // namespace zrk
