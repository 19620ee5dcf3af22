#include "app/scene.h"

#include "app/metaball_motion.h"
#include "app/shell_state.h"
#include "platform/win32.h"
#include "surface/metaball_surface.h"
#include "zrk/library_data.h"
#include "zrk/renderer.h"

#include <cmath>
#include <cstdlib>
#include <iostream>

constinit std::uint32_t frameCounter = 0;

namespace {

constexpr const char* dataFile = "###quazo!_data###/caustics.qvd"; // under the Windows directory
constexpr float regionLimit = amplitudeLimit + 400.0f;             // world units
constexpr float fadeAlpha = 0.1f;
constexpr float clockStep = 0.01f;          // of the animation clock, per drawn frame
constexpr std::uint32_t causticFrames = 32; // the first shaders of the pool
constexpr std::uint32_t framesPerCaustic = 2;

// Where the directory cannot be had, the data is looked for where we are.
void enterWindowsDirectory()
{
    char directory[MAX_PATH] = "";
    GetWindowsDirectoryA(directory, sizeof directory);
    SetCurrentDirectoryA(directory);
}

bool loadData()
{
    if (zrk::libraryData.loadData(dataFile, &std::cout) != 0)
        return false;
    if (zrk::libraryData.shaders.count != 0)
        return true;
    std::cout << "The shaders pool holds no shader" << std::endl;
    return false;
}

void prepareSurface()
{
    metaballSurface.depthSetting = 5;
    metaballSurface.region.max() = Vec3(regionLimit);
    metaballSurface.region.min() = Vec3(-regionLimit);
    metaballSurface.threshold = 0.5f;
    metaballSurface.setBallCount(metaballCount);
}

void moveBalls()
{
    for (std::uint32_t i = 0; i < metaballSurface.ballCount; ++i) {
        const MetaballMotion motion{amplitudes[i], frequencies[i], phases[i], radii[i]};
        metaballSurface.balls[i].set(centreAt(motion, animationTime), motion.radius);
    }
}

void setSurfaceColor()
{
    const double red = 0.2 * (0.5 + 0.5 * std::sin(0.25 * animationTime));
    glColor3f(static_cast<float>(red), 0.04f, 0.132f);
}

/// The shader of this frame's caustics. A pool of fewer shaders than the cycle has is gone through
/// again and again.
const zrk::Shader& causticShader()
{
    const std::uint32_t position = frameCounter / framesPerCaustic % causticFrames;
    const zrk::ShaderPool& pool = zrk::libraryData.shaders;
    return pool[position % pool.count];
}

} // namespace

void drawMotions()
{
    for (std::uint32_t i = 0; i < metaballCount; ++i) {
        const MetaballMotion motion = randomMotion();
        amplitudes[i] = motion.amplitude;
        frequencies[i] = motion.frequency;
        phases[i] = motion.phase;
        radii[i] = motion.radius;
    }
}

void startScene()
{
    enterWindowsDirectory();
    if (!loadData()) {
        MessageBoxA(nullptr, "erreur : datas untrouvable", "", MB_OK | MB_ICONEXCLAMATION);
        std::exit(1);
    }
    zrk::libraryData.upload();
    prepareSurface();
    drawMotions();
}

bool drawFrame()
{
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    zrk::renderer.fadeScreen(fadeAlpha, 0);
    glDisable(GL_DEPTH_TEST); // the fading leaves it on
    moveBalls();
    setSurfaceColor();
    metaballSurface.shader = &causticShader();
    metaballSurface.polygonizeAndDraw();
    ++frameCounter;
    animationTime += clockStep;
    return true;
}
