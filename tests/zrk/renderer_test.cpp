#include "zrk/renderer.h"

#include "tests/support/gl_recorder.h"

#include <gtest/gtest.h>

TEST(Renderer, FadesTheWholeViewAndLeavesDepthTestingOn)
{
    zrk::Renderer renderer;
    renderer.multitextureAvailable = true;
    renderer.glActiveTextureARB = gl_recorder::activeTexture;
    for (const bool severalUnits : {false, true}) {
        renderer.selectUnit(severalUnits ? 1 : 0);
        gl_recorder::reset();
        renderer.fadeScreen(0.25f, GL_COLOR_BUFFER_BIT);
        std::string calls;
        for (const std::string& call : gl_recorder::takeCalls())
            calls += call + "; ";
        const std::string untextured =
            severalUnits ? "glActiveTextureARB(GL_TEXTURE1_ARB); glDisable(GL_TEXTURE_2D); "
                           "glActiveTextureARB(GL_TEXTURE0_ARB); glDisable(GL_TEXTURE_2D); "
                         : "glDisable(GL_TEXTURE_2D); ";
        EXPECT_EQ(
            calls,
            "glClear(16384); glPushAttrib(0x00040040); glDisable(GL_DEPTH_TEST); "
            "glDisable(GL_LIGHTING); " +
                untextured +
                "glMatrixMode(GL_MODELVIEW); glPushMatrix(); glLoadIdentity(); "
                "glMatrixMode(GL_PROJECTION); glPushMatrix(); glLoadIdentity(); "
                "glColor4f(0, 0, 0, 0.25); glBegin(GL_QUADS); glVertex2i(-1, -1); "
                "glVertex2i(1, -1); glVertex2i(1, 1); glVertex2i(-1, 1); glEnd(); glPopMatrix(); "
                "glMatrixMode(GL_MODELVIEW); glPopMatrix(); glEnable(GL_DEPTH_TEST); "
                "glPopAttrib(); ");
    }
}

TEST(Renderer, NamesOpenGlErrors)
{
    testing::internal::CaptureStderr();
    for (GLenum code = 1280; code <= 1286; ++code)
        zrk::renderer.reportGlError(code);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "OpenGL error code 1280 : GLenum argument out of range.\n"
              "OpenGL error code 1281 : numeric argument out of range.\n"
              "OpenGL error code 1282 : operation illegal in current state.\n"
              "OpenGL error code 1283 : command would cause a stack overflow.\n"
              "OpenGL error code 1284 : command would cause a stack underflow.\n"
              "OpenGL error code 1285 : not enough memory left to execute command.\n"
              "OpenGL error code 1286 : unknown error.\n");
}
