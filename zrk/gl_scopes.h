#pragma once

#include "zrk/gl.h"

namespace zrk {

/// Saves the attribute groups in `mask` and restores them at the end of the scope.
class AttribScope {
public:
    explicit AttribScope(GLbitfield mask) { glPushAttrib(mask); }
    AttribScope(const AttribScope&) = delete;
    AttribScope& operator=(const AttribScope&) = delete;
    ~AttribScope() { glPopAttrib(); }
};

/// Replaces the model-view and projection matrices by identities until the end of the scope, so
/// that vertices are given in clip space. Inside, the projection matrix is the current one;
/// afterwards the model-view matrix is.
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

    /// The projection matrix must still be the current one.
    ~ClipSpaceScope()
    {
        glPopMatrix();
        glMatrixMode(GL_MODELVIEW);
        glPopMatrix();
    }
};

} // namespace zrk
