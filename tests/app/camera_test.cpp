#include "app/camera.h"
#include "app/shell_state.h"
#include "tests/app/fresh_shell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

TEST(Camera, ResizeGivesOpenGlTheTransposesAndStoresTheSize)
{
    const FreshShell shell;
    resizeGlView(1600, 1200);
    EXPECT_EQ(windowWidth, 1600);
    EXPECT_EQ(windowHeight, 1200);
    // arctan 45 = 1.5485778, over 4/3 = 1.1614333; 15001 / -14999 and 30000 / -14999.
    EXPECT_EQ(glCalls(),
              "glViewport(0, 0, 1600, 1200); glMatrixMode(GL_PROJECTION); glLoadMatrixf(1.16143, "
              "0, 0, 0, 0, 1.54858, 0, 0, 0, 0, -1.00013, -1, 0, 0, -2.00013, 0); "
              "glMatrixMode(GL_MODELVIEW); "
              "glLoadMatrixf(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, -1, 0, 0, 0, -500, 1); ");
    resizeGlView(800, 0);
    EXPECT_EQ(camera.aspect, 800.0f);
}

TEST(Camera, EachPlaneHidesWhatLiesBeyondItsSide)
{
    const FreshShell shell;
    resizeGlView(800, 600);
    // At the origin, 500 in front of the eye, the view reaches to 430.5 right and 322.9 up.
    const struct {
        Vec3 point;
        std::size_t plane; // the only one that hides it, 6 for none
    } cases[] = {{{0, 0, 0}, 6},    {{430, 322, 0}, 6}, {{432, 0, 0}, 0},     {{-432, 0, 0}, 1},
                 {{0, -324, 0}, 2}, {{0, 324, 0}, 3},   {{0, 0, -499.5f}, 4}, {{0, 0, 20000}, 5}};
    const Frustum& frustum = camera.frustum;
    for (const auto& [point, hiding] : cases)
        for (std::size_t plane = 0; plane < Frustum::planeCount; ++plane)
            EXPECT_EQ(frustum.testedPlanes[plane].distance(point) > 0.0f, plane == hiding)
                << point.x << ' ' << point.y << ' ' << point.z << ", plane " << plane;
    EXPECT_GT(frustum.testedPlanes[4].distance({0, 0, -600}), 0.0f); // behind the eye
    EXPECT_EQ(frustum.selectors[0].highX, 1u);                       // right: outwards is +x
    EXPECT_EQ(frustum.selectors[4].highZ, 0u);                       // near: outwards is -z
}

TEST(Camera, LooksStraightUpWithAnOrthonormalBasis)
{
    Camera own;
    own.lookAt({0, 0, 0}, {0, 5, 0});
    // right = (-1, 0, 0) x (0, 1, 0); up = -(right x (0, 1, 0)); back = -(0, 1, 0)
    const std::vector<float> expected{0, 0, -1, 0, -1, 0, 0, 0, 0, -1, 0, 0, 0, 0, 0, 1};
    EXPECT_THAT(own.view.elements, testing::Pointwise(testing::FloatEq(), expected));
}
