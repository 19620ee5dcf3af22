#pragma once

#include "surface/frustum.h"
#include "surface/matrix4.h"
#include "surface/vec3.h"

#include <cstdint>

/// The projection and view of the saver, as matrices for OpenGL and as frustum planes for culling.
///
/// Eye space has the axes `right`, `up` and `back`; the eye looks along -`back`. The view's
/// determinant is -1: `right` is up x forward, not forward x up, so the picture is the mirror image
/// of what a right-handed view shows. That is meant.
class Camera {
public:
    Frustum frustum; ///< In world space, its normals pointing out of the view volume.
    Matrix4 projection;
    Matrix4 view;      ///< World space to eye space.
    Vec3 eye;          ///< In world space, as are the three axes below.
    float near = 1.0f; ///< Distance of the near plane from the eye, in world units; so is `far`.
    float far = 8000.0f;
    float fieldOfView = 90.0f;   ///< A plain number, not an angle: see `setPerspective`.
    float aspect = 4.0f / 3.0f;  ///< Width / height of the viewport.
    bool useProjection = true;   ///< False: `loadIntoGl` loads the identity in its place.
    bool useView = true;         ///< The same for the view.
    Vec3 back{0.0f, 0.0f, 1.0f}; ///< Unit vector from the target to the eye.
    Vec3 right{4.0f / 3.0f, 0.0f, 0.0f};
    Vec3 up{0.0f, 1.0f, 0.0f};

    Camera();

    /// Makes the projection, a perspective one as OpenGL's clip space wants it:
    ///
    ///     f / aspect  0  0                            0
    ///     0           f  0                            0
    ///     0           0  (near + far) / (near - far)  2 near far / (near - far)
    ///     0           0  -1                           0
    ///
    /// with f = arctan(`newFieldOfView` / 2), the arc tangent of a number. 90 gives f = 1.5485778,
    /// a vertical angle of view of about 65.7 degrees.
    void setPerspective(float newFieldOfView, float newAspect, float newNear, float newFar);

    /// Makes the view of an eye at `newEye` that looks at `target`, both in world space.
    void lookAt(const Vec3& newEye, const Vec3& target);

    /// Loads both matrices into the current OpenGL context, leaves the model-view matrix selected,
    /// and refreshes the frustum's planes. The frustum's selectors are the caller's to refresh.
    void loadIntoGl();

    /// Takes the frustum's planes from projection x view, or, without `withView`, from the
    /// projection alone. The selectors are the caller's to refresh.
    void updateFrustum(bool withView);
};

/// The one camera. Only its aspect ratio ever changes.
extern Camera camera;

/// Fits viewport, camera and the shell's window size to a client area of `width` x `height` pixels.
/// A height of 0 counts as 1 for the aspect ratio. Without a current context OpenGL ignores its
/// share, so call it again once there is one.
void resizeGlView(std::int32_t width, std::int32_t height);
