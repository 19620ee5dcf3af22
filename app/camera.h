#pragma once

#include "surface/frustum.h"
#include "surface/matrix4.h"
#include "surface/vec3.h"

#include <cstdint>

/// The eye: what it sees, as matrices for OpenGL and as planes for culling.
///
/// The picture is the mirror image of what a right-handed view would show: `right` is
/// up x (eye to target), so that world x is screen right although the eye looks along +z.
class Camera {
public:
    Frustum frustum; ///< In world space, its normals pointing out of the view.
    Matrix4 projection;
    Matrix4 view; ///< World to eye: to (right, up, back).
    Vec3 eye;
    float near = 1.0f; ///< World units from the eye, as is `far`.
    float far = 8000.0f;
    float fieldOfView = 90.0f;  ///< A number, see `setPerspective`; no angle.
    float aspect = 4.0f / 3.0f; ///< Width / height of the view.
    bool useProjection = true;  ///< False: OpenGL gets the identity in its place.
    bool useView = true;        ///< The same for the view.
    Vec3 back{0.0f, 0.0f, 1.0f};
    Vec3 right{4.0f / 3.0f, 0.0f, 0.0f};
    Vec3 up{0.0f, 1.0f, 0.0f};

    Camera();

    /// Scales by arctan(`newFieldOfView` / 2), the arc tangent of a number: 90 gives 1.5485778,
    /// a vertical angle of about 65.7 degrees.
    void setPerspective(float newFieldOfView, float newAspect, float newNear, float newFar);

    /// Puts the eye at `newEye` and turns it to `target`, both in world space.
    void lookAt(const Vec3& newEye, const Vec3& target);

    /// Hands both matrices to the current OpenGL context, leaves the model-view matrix current and
    /// refreshes the planes of the frustum.
    void loadIntoGl();

    /// Takes the frustum's planes out of projection x view, or with false out of the projection
    /// alone. Its selectors are the caller's to refresh.
    void updateFrustum(bool withView);
};

/// The one camera; it never moves.
extern Camera camera;

/// Fits OpenGL, the camera and the shell's window size to a client area of `width` by `height`
/// pixels. A height of 0 counts as 1 for the aspect ratio. Without a current context OpenGL hears
/// nothing of it, and the next call makes up for that.
void resizeGlView(std::int32_t width, std::int32_t height);
