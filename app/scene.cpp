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

// The surface. A ball's centre comes as far as the amplitude limit; its field reaches further.
constexpr float regionLimit = amplitudeLimit + 400.0f; // world units, along each axis
constexpr std::uint32_t octreeDepth = 5;               // leaf cells of 75 world units
constexpr float isoLevel = 0.5f;

// The picture: what a frame leaves of the one before, and the colour. Frames are added up, and a
// part that stands still settles at 1 / fadeAlpha times its colour, which is why that is dim.
constexpr float fadeAlpha = 0.1f;
constexpr double highestRed = 0.2;
constexpr double redFrequency = 0.25; // radians per unit of the animation clock
constexpr float green = 0.04f;
constexpr float blue = 0.132f;

constexpr float clockStep = 0.01f;          // of the animation clock, per drawn frame
constexpr std::uint32_t causticFrames = 32; // the first shaders of the pool
constexpr std::uint32_t framesPerCaustic = 2;

// When there is no such directory, the data is looked for in the present one.
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
    std::cout << "The shaders pool holds no shader\n" << std::flush;
    return false;
}

void prepareSurface()
{
    metaballSurface.depthSetting = octreeDepth;
    metaballSurface.region.max() = Vec3(regionLimit);
    metaballSurface.region.min() = Vec3(-regionLimit);
    metaballSurface.threshold = isoLevel;
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
    const double pulse = 0.5 + 0.5 * std::sin(redFrequency * animationTime); // from 0 to 1
    glColor3f(static_cast<float>(highestRed * pulse), green, blue);
}

/// The shader of this frame's caustics, each shown for two frames in turn. A pool of fewer than 32
/// shaders repeats within the cycle.
const zrk::Shader& causticShader()
{
    const std::uint32_t position = frameCounter / framesPerCaustic % causticFrames;
    const zrk::ShaderPool& pool = zrk::libraryData.shaders;
    return pool[position % pool.count];
}

} // namespace

void randomizeMotions()
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
    randomizeMotions();
}

bool drawFrame()
{
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    zrk::renderer.fadeScreen(fadeAlpha, 0);
    glDisable(GL_DEPTH_TEST); // fadeScreen leaves it enabled
    moveBalls();
    setSurfaceColor();
    metaballSurface.shader = &causticShader();
    metaballSurface.polygonizeAndDraw();
    ++frameCounter;
    animationTime += clockStep;
    return true;
}
