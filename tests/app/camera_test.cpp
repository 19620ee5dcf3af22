#include "app/camera.h"
#include "tests/support/gl_recorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

TEST(Camera, GivesOpenGlTheTransposesAndHidesWhatLiesBeyondItsSides)
{
    gl_recorder::reset();
    resizeGlView(800, 600);
    // arctan 45 = 1.5485778, over 4/3 = 1.1614333; 15001 / -14999 and 30000 / -14999.
    EXPECT_THAT(
        gl_recorder::takeCalls(),
        ElementsAre("glViewport(0, 0, 800, 600)", "glMatrixMode(GL_PROJECTION)",
                    "glLoadMatrixf(1.16143, 0, 0, 0, 0, 1.54858, 0, 0, 0, 0, -1.00013, -1, 0, 0, "
                    "-2.00013, 0)",
                    "glMatrixMode(GL_MODELVIEW)",
                    "glLoadMatrixf(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, -1, 0, 0, 0, -500, 1)"));
    // At the origin, 500 in front of the eye, the view reaches to 430.5 right and 322.9 up.
    const Vec3 beyond[] = {{432, 322, 0}, {-432, 0, 0},    {0, -324, 0},
                           {430, 324, 0}, {0, 0, -499.5f}, {0, 0, 20000}};
    for (std::size_t plane = 0; plane < Frustum::planeCount; ++plane)
        for (std::size_t side = 0; side < Frustum::planeCount; ++side)
            EXPECT_EQ(camera.frustum.testedPlanes[plane].distance(beyond[side]) > 0, plane == side);
    EXPECT_EQ(camera.projection(2, 2), 15001.0f / -14999.0f); // from 1 to 15000, to the last bit
    EXPECT_EQ(camera.projection(2, 3), 30000.0f / -14999.0f);
    EXPECT_EQ(camera.frustum.selectors[0].high_x, 1u); // right: outwards is +x
    resizeGlView(800, 0);
    EXPECT_EQ(camera.aspect, 800.0f);

    camera.lookAt({0, 0, 0}, {0, 5, 0});
    // right = (-1, 0, 0) x (0, 1, 0); up = -(right x (0, 1, 0)); back = -(0, 1, 0)
    EXPECT_THAT(camera.view.elements,
                ElementsAre(0, 0, -1, 0, -1, 0, 0, 0, 0, -1, 0, 0, 0, 0, 0, 1));
}
