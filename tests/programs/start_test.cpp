#include <gtest/gtest.h> // before Xlib, which makes a macro of a name of its

#include "tests/programs/program.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/user.h"
#include "tests/support/virtual_display.h"

#include <X11/keysym.h>

#include <csignal>

namespace {

class Start : public testing::Test {
protected:
    VirtualDisplay display{"800x600x24"};
    User user;

    /// Waits for the box of `program` and closes it with `key`; the exit status.
    std::optional<int> statusAfterBox(ChildProcess& program, KeySym key) const
    {
        EXPECT_TRUE(User::waitUntil([&] { return hasFocus(); })) << program.standardOutput();
        EXPECT_TRUE(program.isRunning());
        user.press(key);
        return program.wait();
    }

    // Whether the topmost window is a box and has the focus.
    bool hasFocus() const
    {
        Window focus = 0;
        int revert = 0;
        XGetInputFocus(user.connection(), &focus, &revert);
        const std::vector<Window> windows = user.mappedWindows();
        return !windows.empty() && windows.back() == focus && user.titleOf(focus) == "quazo!";
    }
};

TEST_F(Start, ShowsTheAboutBoxUntilAKeyOrASignal)
{
    ChildProcess program = quazo({});
    EXPECT_EQ(statusAfterBox(program, XK_Return), 0);
    ChildProcess signalled = quazo({"/c:1234"});
    ASSERT_TRUE(User::waitUntil([&] { return hasFocus(); }));
    signalled.signal(SIGTERM);
    EXPECT_EQ(signalled.wait(), 0);
}

// What the parent closed must not be given to our own files: log lines would close the box at once.
TEST_F(Start, ShowsABoxWithoutStandardStreams)
{
    ChildProcess program({"/bin/sh", "-c", "exec \"$0\" /s <&- >&- 2>&-", QUAZO_PROGRAM},
                         {{"QUAZO_WINDOWS_DIRECTORY", "/nowhere"}});
    EXPECT_EQ(statusAfterBox(program, XK_Return), 1);
}

TEST_F(Start, QuitsSilently)
{
    ChildProcess program = quazo({"/p", "1234"});
    EXPECT_EQ(program.wait(), 0);
    EXPECT_EQ(program.standardOutput() + program.standardError(), "");
}

struct BrokenData {
    const char* dataFile;
    const char* texturesPool; ///< Null: no such file.
    const char* log;
};

const BrokenData brokenData[] = {
    {nullptr, nullptr, "Cannot open file\"###quazo!_data###/caustics.qvd\"\n"},
    {"textures\nshaders\n", nullptr,
     "Error opening file `textures'\nError loading textures pool file : 'textures'\n"},
    {"textures\r\nshaders\r\n", "0\r\n",
     "Undefined warning\nError loading textures pool file : 'textures'\n"},
    {"textures\nshaders\n", "1\nmissing.png mipmap\n",
     "Error: cannot load image 'missing.png'\nError loading textures pool file : 'textures'\n"},
    {"textures\nshaders\n", "1\ndot.pgm Mipmap\n",
     "Unknown texture parameter `Mipmap'\nError loading textures pool file : 'textures'\n"},
    {"textures\nno shaders\n", "1\ndot.pgm\n",
     "Successfully loaded `textures'\nError loading shaders pool file : 'no shaders'\n"},
};

TEST_F(Start, NamesWhatIsWrongWithTheDataAndEndsWithStatusOne)
{
    for (const BrokenData& broken : brokenData) {
        SCOPED_TRACE(broken.log);
        const TemporaryDirectory windows;
        windows.write("dot.pgm", "P5 1 1 255\n.");
        if (broken.dataFile != nullptr)
            windows.write("###quazo!_data###/caustics.qvd", broken.dataFile);
        if (broken.texturesPool != nullptr)
            windows.write("textures", broken.texturesPool);
        ChildProcess program = quazo({"/s"}, {{"QUAZO_WINDOWS_DIRECTORY", windows.path}});
        EXPECT_EQ(statusAfterBox(program, XK_Escape), 1);
        EXPECT_EQ(program.standardOutput(), broken.log);
    }
}

TEST_F(Start, WithoutADisplaySaysSoOnStandardError)
{
    for (const char* arguments : {"/s", "/c"}) {
        ChildProcess program = quazo({arguments}, {{"DISPLAY", ":9999"}});
        EXPECT_EQ(program.wait(), 1);
        EXPECT_EQ(program.standardError(), "quazo: no X display can be reached (DISPLAY is "
                                           "\":9999\"); on Wayland, install xwayland\n");
    }
}

} // namespace
