#include "app/metaball_motion.h"
#include "surface/metaball_surface.h"
#include "tests/app/shell.h"
#include "zrk/renderer.h"
#include "zrk/shaders/blend_layer.h"

#include <array>
#include <bit>
#include <cmath>
#include <ctime>
#include <memory>
#include <span>

namespace {

std::string failing; // a call that no desktop makes fail
HWND newestWindow = nullptr;
WNDCLASSA registeredClass{};
PIXELFORMATDESCRIPTOR wantedFormat{};

} // namespace

extern "C" {

HDC __real_GetDC(HWND window);
HDC __wrap_GetDC(HWND window)
{
    const HDC real = __real_GetDC(failing == "ReleaseDC" ? nullptr : window);
    newestWindow = window == nullptr ? newestWindow : window;
    return failing == "GetDC" ? nullptr : real;
}

ATOM __real_RegisterClassA(const WNDCLASSA* windowClass);
ATOM __wrap_RegisterClassA(const WNDCLASSA* windowClass)
{
    registeredClass = *windowClass;
    return __real_RegisterClassA(windowClass);
}

int __real_ChoosePixelFormat(HDC deviceContext, const PIXELFORMATDESCRIPTOR* descriptor);
int __wrap_ChoosePixelFormat(HDC deviceContext, const PIXELFORMATDESCRIPTOR* descriptor)
{
    wantedFormat = *descriptor;
    return __real_ChoosePixelFormat(deviceContext, descriptor);
}

void __wrap_SDL_Quit()
{
    gl_recorder::note("SDL_Quit");
}

} // extern "C"

TEST_F(Shell, LetsTheFirstDecidingLetterDecide)
{
    const std::string about = "^messageBox.\"quazo! screen saver v1e-32 beta by the quazo! makers\n"
                              "[^\n]*README[^\n]*\", \"\", 48.; $";
    const std::string started = "^createWindow.*; $";
    const std::pair<const char*, std::string> cases[] = {
        {"", about},     {"/c", about},   {"/c:1234", about}, {"cs", about},
        {"/s", started}, {"/S", started}, {"sc", started},    {"xys", started},
        {"/C", "^$"},    {"/a", "^$"},    {"/p 1234", "^$"},  {"/C -s", started}};
    headless_desktop::fail("createWindow");
    for (const auto& [commandLine, requested] : cases) {
        run(commandLine);
        EXPECT_THAT(joined(headless_desktop::takeRequests()), testing::ContainsRegex(requested))
            << commandLine;
    }
}

TEST_F(Shell, OpensCoversDrawsAndClosesInOrder)
{
    gl_recorder::setExtensions("GL_ARB_multitexture_more  GL_ARB_multitexture GL_EXT_fog");
    gl_recorder::answer(GL_MAX_TEXTURE_UNITS, 2);
    play(0);
    play(WM_KEYDOWN, VK_TAB);
    play(WM_KEYUP, VK_TAB); // seen for one frame
    play(WM_ACTIVATE, WA_INACTIVE);
    const int shownBefore = ShowCursor(FALSE);
    const std::time_t start = std::time(nullptr);
    EXPECT_EQ(run(), 3u);
    EXPECT_EQ(joined(headless_desktop::takeRequests()),
              "createWindow(\"quazo! screen saver v1e-32 beta\", 0, 0, 800, 600); "
              "showPointer(1, hidden); choosePixelFormat(1, 32); setPixelFormat(1, 1); "
              "createContext(1); makeCurrent(1, 1); showWindow(1); raiseWindow(1); "
              "focusWindow(1); setScreenSaverRunning(true); size(); size(); "
              "placeWindow(1, 0, 0, 1024, 767, topmost); glProcedure(glActiveTextureARB); "
              "swapBuffers(1); swapBuffers(1); "
              "makeCurrent(0, 0); deleteContext(1); destroyWindow(1); "
              "setScreenSaverRunning(false); ");
    EXPECT_EQ(animationTime, 0.01f); // of the frame after the tap
    EXPECT_EQ(zrk::renderer.textureUnits, 2u);
    EXPECT_EQ(ShowCursor(TRUE), shownBefore - 2 + 1); // the saver hides it twice
    // The window's sizes: made, shown, with its context, and covering the screen.
    std::vector<std::string> views = gl_recorder::takeCalls();
    std::erase_if(views, [](const std::string& call) { return !call.starts_with("glViewport"); });
    const std::string first = "glViewport(0, 0, 800, 600)";
    EXPECT_THAT(views, testing::ElementsAre(first, first, first, "glViewport(0, 0, 1024, 767)"));
    // Seeded with the time: the first draw is the first ball's amplitude along x.
    const float drawn = amplitudes[0].x;
    std::vector<float> firstDraws;
    for (std::time_t second = start; second <= std::time(nullptr); ++second) {
        std::srand(static_cast<unsigned>(second));
        firstDraws.push_back(static_cast<float>(std::rand() % 32768) * (800.0f / 32768.0f));
    }
    EXPECT_THAT(firstDraws, testing::Contains(drawn));
}

TEST_F(Shell, AsksForAClassOfItsOwnContextAndAFormatOfColourAlone)
{
    run();
    EXPECT_EQ(registeredClass.style, 0x23u);
    EXPECT_EQ(registeredClass.lpfnWndProc, &glWindowProc);
    EXPECT_STREQ(registeredClass.lpszClassName, "OpenGL");
    EXPECT_EQ(registeredClass.hbrBackground, nullptr);
    EXPECT_EQ(std::pair(registeredClass.hCursor, registeredClass.hIcon),
              std::pair(LoadCursorA(nullptr, IDC_ARROW), LoadIconA(nullptr, IDI_WINLOGO)));
    // Size, version, flags, RGBA and 32 bits of colour, byte by byte; the rest is nothing.
    const std::array<unsigned char, 40> colourAlone{40, 0, 1, 0, 0x25, 0, 0, 0, 0, 32};
    EXPECT_EQ((std::bit_cast<std::array<unsigned char, 40>>(wantedFormat)), colourAlone);
}

TEST_F(Shell, SwapsAndHoldsTheBallsAlsoWhileItIsMinimised)
{
    play(0);
    play(WM_ACTIVATE, 0x10000);
    headless_desktop::resize({40000, 30000});
    play(WM_KEYDOWN, VK_TAB);
    EXPECT_EQ(run(), 1u);
    EXPECT_THAT(joined(headless_desktop::takeRequests()),
                testing::HasSubstr("; swapBuffers(1); swapBuffers(1); makeCurrent(0, 0); "));
    EXPECT_EQ(animationTime, 0.0f);
    EXPECT_EQ(windowWidth, 40000);
}

TEST_F(Shell, ReportsEveryStepThatFails)
{
    const std::pair<const char*, const char*> cases[] = {
        {"createWindow", R"(false); messageBox("Window Creation Error.", "ERROR", 48); )"},
        {"GetDC", R"(false); messageBox("Can't Create A GL Device Context.", "ERROR", 48); )"},
        {"choosePixelFormat", R"(messageBox("Can't Find A Suitable PixelFormat.", "ERROR", 48); )"},
        {"setPixelFormat", R"(false); messageBox("Can't Set The PixelFormat.", "ERROR", 48); )"},
        {"createContext", R"(messageBox("Can't Create A GL Rendering Context.", "ERROR", 48); )"},
        {"makeCurrent", R"("Release Of DC And RC Failed.", "SHUTDOWN ERROR", 64); deleteContext)"},
        {"makeCurrent", R"(messageBox("Can't Activate The GL Rendering Context.", "ERROR", 48); )"},
        {"deleteContext", R"("Release Rendering Context Failed.", "SHUTDOWN ERROR", 64); destroy)"},
        {"ReleaseDC", R"("Release Device Context Failed.", "SHUTDOWN ERROR", 64); destroy)"},
        {"destroyWindow", R"(messageBox("Could Not Release hWnd.", "SHUTDOWN ERROR", 64); )"
                          R"(messageBox("Could Not Unregister Class.", "SHUTDOWN ERROR", 64); )"},
        {"", R"(messageBox("Failed To Register The Window Class.", "ERROR", 48); )"}};
    for (const auto& [step, reported] : cases) { // the last one meets the window left before it
        restart();
        headless_desktop::fail(step);
        failing = step;
        run();
        EXPECT_THAT(joined(headless_desktop::takeRequests()), testing::HasSubstr(reported));
    }
    DestroyWindow(newestWindow);
    UnregisterClassA("OpenGL", nullptr);
}

TEST_F(Shell, QuitsWhenAskedTo)
{
    play(WM_CLOSE);
    play(WM_KEYDOWN, 256); // no key
    play(WM_KEYDOWN, 'A'); // all that waits is handled before the quit
    zrk::renderer.glActiveTextureARB = gl_recorder::activeTexture; // of an earlier context
    EXPECT_EQ(run(), 0u);
    EXPECT_TRUE(keyDown['A']);
    EXPECT_EQ(zrk::renderer.glActiveTextureARB, nullptr);
    for (const UINT message :
         {WM_CLOSE, WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONDOWN, WM_SYSKEYDOWN}) {
        restart();
        play(message, VK_F4);
        EXPECT_EQ(run(), 0u) << message;
    }
    for (const LONG travel : {100, 101}) {
        restart();
        for (LONG step = 0; step <= travel; ++step)
            play(WM_MOUSEMOVE, 0, 0, {900, -700 + step % 2});
        EXPECT_EQ(run(), travel == 100 ? 2u : 0u);
    }
}

TEST_F(Shell, LeavesItsObjectsToGoSdlFirstThenTexturesThenLayers)
{
    struct LastLayer : zrk::BlendLayer {
        ~LastLayer() override { std::fputs(joined(gl_recorder::takeCalls()).c_str(), stderr); }
    };
    const auto runAndEnd = [] {
        run();
        gl_recorder::reset();
        zrk::libraryData.shaders[0].addLayer(std::make_unique<LastLayer>());
        std::exit(0);
    };
    EXPECT_EXIT(runAndEnd(), testing::ExitedWithCode(0),
                "^SDL_Quit; glDeleteTextures.1, 3.; glDeleteTextures.1, 2.; "
                "glDeleteTextures.1, 1.; $");
}

TEST_F(Shell, GivesTheSurfaceItsSettingsAndEveryBallAMotionOfTenDraws)
{
    std::srand(7);
    startScene();
    EXPECT_EQ(metaballSurface.depthSetting, 5u);
    EXPECT_EQ(metaballSurface.threshold, 0.5f);
    EXPECT_EQ(metaballSurface.region.min().y, -1200.0f);
    EXPECT_EQ(metaballSurface.region.max().z, 1200.0f);
    animationTime = 1.5f;
    EXPECT_TRUE(drawFrame());
    std::srand(7);
    for (const Metaball& ball : std::span(metaballSurface.balls.get(), 12)) {
        double r[10]; // amplitudes, frequencies, phases of x, y and z; the radius
        for (double& draw : r)
            draw = std::rand() % 32768 / 32768.0;
        const auto angle = [&](int axis) {
            return (1.5 + r[axis + 6] * 6.283185307179586) * (r[axis + 3] * 4 - 2);
        };
        EXPECT_NEAR(ball.centre.x, r[0] * 800 * std::sin(angle(0)), 0.01);
        EXPECT_NEAR(ball.centre.y, r[1] * 800 * std::cos(angle(1)), 0.01);
        EXPECT_NEAR(ball.centre.z, r[2] * 800 * std::sin(angle(2)), 0.01);
        EXPECT_FLOAT_EQ(ball.radius, static_cast<float>(r[9] * 350 + 150));
    }
}

TEST_F(Shell, FadesColoursAndAppliesTheShaderOfTheFrameNumber)
{
    startScene();
    gl_recorder::takeCalls();
    zrk::renderer.fadeScreen(0.1f, 0);
    const std::string everyFrame =
        "glEnable(GL_BLEND); glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA); " +
        joined(gl_recorder::takeCalls()) +
        "glDisable(GL_DEPTH_TEST); glColor3f(0.2, 0.04, 0.132); glDisable(GL_BLEND); ";
    const std::pair<std::uint32_t, const char*> cases[] = {
        {0, "glEnable(GL_TEXTURE_2D); glBindTexture(GL_TEXTURE_2D, 1); glTexParameteri("},
        {1, "glBegin(GL_TRIANGLES); "},
        {2, "glBindTexture(GL_TEXTURE_2D, 2); glTexParameteri("},
        {63, "glBegin(GL_TRIANGLES); "}, // 31, of three shaders
        {64, "glBindTexture(GL_TEXTURE_2D, 1); glBegin(GL_TRIANGLES); "}};
    for (const auto& [frame, calls] : cases) {
        animationTime = 6.2831853f; // a quarter of it is pi / 2: red is at its height
        frameCounter = frame;
        EXPECT_TRUE(drawFrame());
        EXPECT_TRUE(joined(gl_recorder::takeCalls()).starts_with(everyFrame + calls)) << frame;
    }
}

TEST_F(Shell, EndsWithABoxWithoutAShader)
{
    EXPECT_EQ(zrk::libraryData.loadData("missing", nullptr), 1);
    windows.write("broken", "missing\n");
    EXPECT_EQ(zrk::libraryData.loadData("broken", nullptr), 1);
    windows.write("shaders", "");
    const auto startTelling = [] {
        std::atexit([] { std::fputs(headless_desktop::takeRequests()[0].c_str(), stderr); });
        startScene();
    };
    EXPECT_EXIT(startTelling(), testing::ExitedWithCode(1),
                "^messageBox.\"erreur : datas untrouvable\", \"\", 48.$");
}
