#include "app/camera.h"

#include "app/shell_state.h"
#include "zrk/gl.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace {

// What the saver's camera keeps whatever the window's size.
constexpr float fixedFieldOfView = 90.0f; // see setPerspective
constexpr float fixedNear = 1.0f;         // world units
constexpr float fixedFar = 15000.0f;      // world units
constexpr Vec3 fixedEye{0.0f, 0.0f, -500.0f};
constexpr Vec3 fixedTarget{0.0f, 0.0f, 0.0f};

// A point is inside the view volume while -w <= x, y, z <= w in clip space. Each of these six
// inequalities is a plane in world space, whose coefficients are a sum or difference of two rows of
// the matrix to clip space (the method of Gribb and Hartmann).
struct ClipSide {
    std::size_t row; // of the coordinate: 0 x, 1 y, 2 z
    float side;      // 1 for coordinate <= w, -1 for -w <= coordinate
};

// In the frustum's order: right, left, bottom, top, near, far.
constexpr std::array<ClipSide, Frustum::planeCount> clipSides{{
    {0, 1.0f},
    {0, -1.0f},
    {1, -1.0f},
    {1, 1.0f},
    {2, -1.0f},
    {2, 1.0f},
}};

// side * row - row of w: positive outside, as the frustum's normals point out of the view volume.
Plane planeOf(const Matrix4& m, const ClipSide& clip)
{
    const auto element = [&](std::size_t column) {
        return clip.side * m(clip.row, column) - m(3, column);
    };
    return {.d = element(3), .n = {element(0), element(1), element(2)}};
}

void loadMatrix(GLenum mode, const Matrix4& matrix, bool use)
{
    glMatrixMode(mode);
    if (!use) {
        glLoadIdentity();
        return;
    }
    std::array<GLfloat, 16> columns; // OpenGL stores matrices column by column
    for (std::size_t row = 0; row < 4; ++row)
        for (std::size_t column = 0; column < 4; ++column)
            columns[4 * column + row] = matrix(row, column);
    glLoadMatrixf(columns.data());
}

} // namespace

Camera::Camera()
{
    setPerspective(fieldOfView, aspect, near, far);
}

void Camera::setPerspective(float newFieldOfView, float newAspect, float newNear, float newFar)
{
    fieldOfView = newFieldOfView;
    aspect = newAspect;
    near = newNear;
    far = newFar;

    // Meant: the arc tangent of the number, not the cotangent of half an angle. It decides how
    // large everything is seen.
    const auto scale = static_cast<float>(std::atan(0.5 * fieldOfView));
    projection.elements.fill(0.0f);
    projection(0, 0) = scale / aspect;
    projection(1, 1) = scale;
    projection(2, 2) = (near + far) / (near - far);
    projection(2, 3) = 2.0f * near * far / (near - far);
    projection(3, 2) = -1.0f;
}

void Camera::lookAt(const Vec3& newEye, const Vec3& target)
{
    Vec3 forward = target - newEye;
    forward.normalize();
    const bool straightUpOrDown = forward.x == 0.0f && forward.z == 0.0f;
    up = straightUpOrDown ? Vec3(-forward.y, 0.0f, 0.0f) : Vec3(0.0f, 1.0f, 0.0f);
    // Meant: up x forward and not its opposite, which mirrors the picture.
    right = cross(up, forward);
    right.normalize();
    up = cross(right, forward); // perpendicular to both, but upside down
    up.normalize();
    up = up * -1.0f;
    back = forward * -1.0f;
    eye = newEye;
    view = Matrix4::fromRows(right, up, back) * Matrix4::translation(-eye.x, -eye.y, -eye.z);
}

void Camera::loadIntoGl()
{
    loadMatrix(GL_PROJECTION, projection, useProjection);
    loadMatrix(GL_MODELVIEW, view, useView);
    updateFrustum(true);
}

void Camera::updateFrustum(bool withView)
{
    const Matrix4 toClip = withView ? projection * view : projection;
    for (std::size_t i = 0; i < Frustum::planeCount; ++i)
        frustum.planes[i] = planeOf(toClip, clipSides[i]);
    frustum.normalizePlanes();
    frustum.testedPlanes = frustum.planes;
}

void resizeGlView(std::int32_t width, std::int32_t height)
{
    windowWidth = width;
    windowHeight = height;
    glViewport(0, 0, width, height);
    const float aspect = static_cast<float>(width) / static_cast<float>(height == 0 ? 1 : height);
    camera.setPerspective(fixedFieldOfView, aspect, fixedNear, fixedFar);
    camera.lookAt(fixedEye, fixedTarget);
    camera.loadIntoGl();
    camera.frustum.refreshSelectors();
}
