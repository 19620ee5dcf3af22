#include "app/camera.h"
#include "app/metaball_motion.h"
#include "app/scene.h"
#include "app/shell_state.h"
#include "surface/metaball_surface.h"
#include "tests/app/fresh_shell.h"
#include "zrk/library_data.h"
#include "zrk/renderer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <unistd.h>

namespace {

constexpr const char* threeShaders =
    "first\n{\ntexture: 0, linear, linear, clamp, clamp, modulate, <0, 0, 0, 0>\n}\n"
    "second\n{\ntexture: 1, linear, linear, clamp, clamp, modulate, <0, 0, 0, 0>\n"
    "blend: one, one\n}\n"
    "third\n{\ntexture: 2, linear, linear, clamp, clamp, modulate, <0, 0, 0, 0>\n}\n";

// What frame number `frame` sends, without the triangles.
std::string callsOfFrame(std::uint32_t frame)
{
    frameCounter = frame;
    glCalls();
    EXPECT_TRUE(drawFrame());
    const std::string calls = glCalls();
    return calls.substr(0, calls.find("glBegin(GL_TRIANGLES)"));
}

// Writes to standard error what goes to standard output, and at the end what was asked for.
void startTelling()
{
    dup2(STDERR_FILENO, STDOUT_FILENO);
    std::atexit([] { std::fputs(requests().c_str(), stderr); });
    startScene();
}

} // namespace

TEST(Scene, StartGivesTheSurfaceItsSettingsAndEveryBallAMotion)
{
    FreshShell shell;
    shell.makeData(threeShaders);
    std::srand(7);
    startScene();
    EXPECT_EQ(metaballSurface.depthSetting, 5u);
    EXPECT_EQ(metaballSurface.region.min().y, -1200.0f);
    EXPECT_EQ(metaballSurface.region.max().z, 1200.0f);
    EXPECT_EQ(metaballSurface.ballCount, 12u);
    animationTime = 1.5f;
    EXPECT_TRUE(drawFrame());
    std::srand(7);
    for (const Metaball& ball : std::span(metaballSurface.balls.get(), 12)) {
        const MetaballMotion motion = randomMotion();
        EXPECT_EQ(ball.radius, motion.radius);
        EXPECT_EQ((ball.centre - centreAt(motion, 1.5f)).length(), 0.0f);
    }
}

TEST(Scene, FrameFadesColoursAndAppliesTheShaderOfItsNumber)
{
    FreshShell shell;
    shell.makeData(threeShaders);
    startScene();
    resizeGlView(800, 600);
    glCalls();
    zrk::renderer.fadeScreen(0.1f, 0);
    const std::string fading = "glEnable(GL_BLEND); glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA); " +
                               glCalls() + "glDisable(GL_DEPTH_TEST); ";
    const std::string sampling =
        "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR); "
        "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR); "
        "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP); "
        "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP); "
        "glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE); "
        "glTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, 0, 0, 0, 0); ";
    EXPECT_EQ(callsOfFrame(0), fading +
                                   "glColor3f(0.1, 0.04, 0.132); glDisable(GL_BLEND); "
                                   "glEnable(GL_TEXTURE_2D); "
                                   "glBindTexture(GL_TEXTURE_2D, 1); " +
                                   sampling);
    // 0.2 * (0.5 + 0.5 * sin(0.25 * 0.01)) = 0.10025
    EXPECT_EQ(callsOfFrame(1), fading + "glColor3f(0.10025, 0.04, 0.132); glDisable(GL_BLEND); ");
    EXPECT_EQ(callsOfFrame(2), fading +
                                   "glColor3f(0.1005, 0.04, 0.132); glEnable(GL_BLEND); "
                                   "glBindTexture(GL_TEXTURE_2D, 2); " +
                                   sampling + "glBlendFunc(GL_ONE, GL_ONE); ");
    EXPECT_EQ(callsOfFrame(6), fading + "glColor3f(0.10075, 0.04, 0.132); glDisable(GL_BLEND); "
                                        "glBindTexture(GL_TEXTURE_2D, 1); ");
    constexpr struct {
        std::uint32_t frame, shader; // (frame / 2) mod 32 mod 3
    } cases[] = {{1, 0}, {3, 1}, {5, 2}, {7, 0}, {62, 1}, {63, 1}, {64, 0}, {0xFFFFFFFF, 1}};
    for (const auto& [frame, position] : cases) {
        callsOfFrame(frame);
        EXPECT_EQ(metaballSurface.shader, &zrk::libraryData.shaders[position]) << frame;
    }
}

TEST(Scene, EndsWithABoxWithoutDataOrWithoutAShader)
{
    const std::string box = "messageBox.\"erreur : datas untrouvable\", \"\", 48.; $";
    FreshShell shell;
    EXPECT_EXIT(startTelling(), testing::ExitedWithCode(1), "Cannot open file.*" + box);
    shell.makeData("");
    EXPECT_EXIT(startTelling(), testing::ExitedWithCode(1),
                "The shaders pool holds no shader\n" + box);
}
