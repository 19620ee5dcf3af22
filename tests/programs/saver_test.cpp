#include <gtest/gtest.h> // before Xlib, which makes a macro of a name of its

#include "tests/programs/program.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/user.h"
#include "tests/support/virtual_display.h"

#include <X11/keysym.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <optional>

namespace {

// Each test has a server of its own, so that nothing of an earlier run is on its screen.
class Saver : public testing::Test {
protected:
    VirtualDisplay display{"1024x768x24"};
    User user;

    Window running(ChildProcess& saver) const
    {
        const Window window = user.waitForWindow(saverTitle);
        EXPECT_TRUE(saver.isRunning()) << saver.standardError();
        return window;
    }

    bool isLit(int brightness) const
    {
        const User::Picture picture = user.look();
        return std::any_of(picture.rgb.begin(), picture.rgb.end(),
                           [=](int value) { return value >= brightness; });
    }
};

struct Ending {
    const char* name;
    std::function<void(const User&, const ChildProcess&, Window)> act;
};

const Ending endings[] = {
    {"Escape", [](const User& user, auto&, Window) { user.press(XK_Escape); }},
    {"left button", [](const User& user, auto&, Window) { user.click(1); }},
    {"middle button", [](const User& user, auto&, Window) { user.click(2); }},
    {"right button", [](const User& user, auto&, Window) { user.click(3); }},
    {"close", [](const User& user, auto&, Window window) { user.askToClose(window); }},
    {"101 pixels in one move", [](const User& user, auto&, Window) { user.moveTo(300, 301); }},
    {"101 pixels to and fro",
     [](const User& user, auto&, Window) {
         for (int step = 1; step <= 101; ++step)
             user.moveTo(200 + step % 2, 300);
     }},
    {"SIGTERM", [](auto&, const ChildProcess& saver, Window) { saver.signal(SIGTERM); }},
    {"SIGINT", [](auto&, const ChildProcess& saver, Window) { saver.signal(SIGINT); }},
    {"SIGHUP", [](auto&, const ChildProcess& saver, Window) { saver.signal(SIGHUP); }},
};

TEST_F(Saver, EndsWithStatusZeroAndWithoutAWord)
{
    for (const Ending& ending : endings) {
        SCOPED_TRACE(ending.name);
        user.moveTo(200, 300);
        ChildProcess saver = quazo({"/s"});
        const Window window = running(saver);
        ASSERT_TRUE(User::waitUntil([&] { return isLit(1); }));
        ending.act(user, saver, window);
        EXPECT_EQ(saver.wait(), 0);
        EXPECT_EQ(saver.standardError(), "");
        EXPECT_TRUE(User::waitUntil([&] { return user.mappedWindows().empty(); }));
    }
}

TEST_F(Saver, GoesOnThroughWhatIsNoReasonToEnd)
{
    user.moveTo(200, 300);
    ChildProcess saver = quazo({"xys"});
    running(saver);
    ASSERT_TRUE(User::waitUntil([&] { return isLit(1); }));
    user.moveTo(250, 350); // 100 pixels, and not one more
    for (const int key : {XK_a, XK_space, XK_Return, XK_F1, XK_Shift_L, XK_Tab})
        user.press(static_cast<KeySym>(key));
    user.click(4); // the wheel
    EXPECT_EQ(saver.wait(std::chrono::seconds(1)), std::nullopt);
    user.moveTo(251, 350);
    EXPECT_EQ(saver.wait(), 0);
}

// The picture has black around the blobs, bright filaments, and dim trails.
TEST_F(Saver, CoversTheScreenButForItsLastRowWithGlowingBlobs)
{
    ChildProcess saver = quazo({"/S"});
    const Window window = running(saver);
    ASSERT_TRUE(User::waitUntil([&] { return user.attributesOf(window).height == 767; }));
    const XWindowAttributes place = user.attributesOf(window);
    EXPECT_EQ(place.x, 0);
    EXPECT_EQ(place.y, 0);
    EXPECT_EQ(place.width, 1024);
    EXPECT_EQ(place.depth, 24); // a visual with alpha would let the desktop shine through
    ASSERT_TRUE(User::waitUntil([&] { return isLit(160); }));
    const User::Picture picture = user.look();
    int dark = 0;
    int dim = 0;
    int bright = 0;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x) {
            const int value = picture.brightness(x, y);
            ++(value < 8 ? dark : value < 96 ? dim : bright);
        }
    const int pixels = picture.width * picture.height;
    EXPECT_GT(dim, pixels / 20);
    EXPECT_GT(bright, pixels / 2000);
    EXPECT_LT(bright, pixels / 2);
}

TEST_F(Saver, ShowsTheFirstTextureWhereThereIsNoMultitexture)
{
    const TemporaryDirectory windows;
    windows.write("###quazo!_data###/caustics.qvd", "textures\nshaders\n");
    windows.write("textures", "1\nwhite.pgm\n");
    windows.write("white.pgm", "P5 1 1 255\n\xFF");
    const std::string stage = ", 0, linear, linear, repeat, repeat, modulate, <0, 0, 0, 0>";
    windows.write("shaders", "two\n{\nmultitexture: 2" + stage + stage + "\nblend: one, one\n}\n");
    ChildProcess saver = quazo({"/s"}, {{"QUAZO_WINDOWS_DIRECTORY", windows.path},
                                        {"MESA_EXTENSION_OVERRIDE", "-GL_ARB_multitexture"}});
    running(saver);
    EXPECT_TRUE(User::waitUntil([&] { return isLit(100); }));
    user.press(XK_Escape);
    EXPECT_EQ(saver.wait(), 0);
    EXPECT_EQ(saver.standardError(),
              "quazo: too few texture units: only the first of several textures is shown\n");
}

// This process must not be connected when the server ends: Xlib would end it too.
TEST(SaverWithoutServer, GoesWithoutAWord)
{
    std::optional<VirtualDisplay> display(std::in_place);
    ChildProcess saver = quazo({"/s"});
    EXPECT_NE(User().waitForWindow(saverTitle), 0u);
    display.reset();
    EXPECT_EQ(saver.wait(std::chrono::seconds(5)), 0);
    EXPECT_EQ(saver.standardError(), "");
}

} // namespace
