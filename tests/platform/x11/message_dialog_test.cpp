#include "tests/platform/x11/desktop_fixture.h"

#include "platform/x11/display.h"
#include "platform/x11/window_manager.h"

#include <X11/keysym.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using namespace platform::desktop;
using testing::ExitedWithCode;

namespace {

/// The box, shown by a process of its own, as it waits for the user.
class MessageDialog : public DesktopFixture {
protected:
    MessageDialog() { EXPECT_EQ(pipe(endPipe.data()), 0); }

    ~MessageDialog() override
    {
        close(endPipe[0]);
        close(endPipe[1]);
    }

    void run(const std::function<void()>& program)
    {
        process = fork();
        if (process != 0)
            return;
        program();
        disconnect();
        std::exit(0);
    }

    /// Returns once the box has the keyboard.
    XWindowAttributes show(const char* text, const char* caption)
    {
        run([=, this] { messageBox(text, caption, MB_ICONEXCLAMATION, endPipe[0]); });
        box = user.waitForWindow(caption);
        EXPECT_TRUE(User::waitUntil([this] {
            Window focused = 0;
            int revert = 0;
            XGetInputFocus(user.connection(), &focused, &revert);
            return focused == box;
        })) << text;
        return user.attributesOf(box);
    }

    int exitStatus() const
    {
        int status = -1;
        waitpid(process, &status, 0);
        return status;
    }

    std::array<int, 2> endPipe{};
    pid_t process = 0;
    Window box = 0;
};

void printWithoutDisplay()
{
    unsetenv("DISPLAY");
    messageBox("two\nlines", "caption", MB_ICONINFORMATION, -1);
    std::exit(0);
}

void printInHostsWindow()
{
    const std::array<const char*, 4> arguments = {"quazo", "/s", "--window-id", "12345"};
    chooseHost(static_cast<int>(arguments.size()), arguments.data());
    messageBox("two\nlines", "caption", MB_ICONINFORMATION, -1);
    std::exit(0);
}

} // namespace

TEST_F(MessageDialog, ClosesInEveryUsualWay)
{
    const std::array<std::function<void()>, 7> ways = {
        [this] { user.press(XK_Return); },
        [this] { user.press(XK_KP_Enter); },
        [this] { user.press(XK_space); },
        [this] { user.press(XK_Escape); },
        [this] { user.askToClose(box); },
        [this] { user.click(1); },
        [this] { EXPECT_EQ(write(endPipe[1], "", 1), 1); }, // a signal to end
    };
    for (std::size_t way = 0; way < ways.size(); ++way) {
        const XWindowAttributes place = show("some text", way % 2 == 0 ? "" : "ERROR");
        constexpr int buttonsMiddle = 30; // above the lower edge
        user.moveTo(place.x + place.width / 2, place.y + place.height - buttonsMiddle);
        ways[way]();
        EXPECT_EQ(exitStatus(), 0) << way;
    }
}

TEST_F(MessageDialog, ShowsTheTextAsItStandsInTheMiddleOfTheScreen)
{
    struct Case {
        const char* text;
        bool isWider, isHigher; // than the first
    };
    XWindowAttributes first{};
    for (const Case& shown :
         {Case{"1\n2\n3\n4\n5\n6", false, false}, Case{"1\n2\n3\n4\n5\n6\n7", false, true},
          Case{"1\n2 @ more\n3\n4\n5\n6", true, false}}) {
        const XWindowAttributes place = show(shown.text, "");
        EXPECT_NEAR(place.x + place.width / 2, screen.width / 2, 1);
        EXPECT_NEAR(place.y + place.height / 2, screen.height / 2, 1);
        if (first.width == 0)
            first = place;
        EXPECT_EQ(place.width > first.width, shown.isWider) << shown.text;
        EXPECT_EQ(place.height > first.height, shown.isHigher) << shown.text;
        user.press(XK_Return);
        EXPECT_EQ(exitStatus(), 0);
    }
    const XWindowAttributes place = show("@", "");
    int darkPixels = 0;
    EXPECT_TRUE(User::waitUntil([&] {
        const User::Picture picture = user.look();
        darkPixels = 0;
        for (int x = 65; x < place.width - 2; ++x) // to the right of the icon
            for (int y = 2; y < place.height / 2; ++y)
                darkPixels += picture.brightness(place.x + x, place.y + y) < 100 ? 1 : 0;
        return darkPixels > 10;
    })) << darkPixels;
    user.press(XK_Return);
    EXPECT_EQ(exitStatus(), 0);
}

TEST_F(MessageDialog, ComesUpAboveTheSaversWindow)
{
    const ChildProcess manager({QUAZO_OPENBOX, "--sm-disable"});
    ASSERT_TRUE(
        User::waitUntil([] { return platform::x11::managerRuns(platform::x11::connection()); }));
    disconnect(); // the program connects by itself
    run([this] {
        const NativeWindow saver = open(screen);
        EXPECT_TRUE(placeWindow(saver, 0, 0, screen, true));
        messageBox("some text", "", MB_ICONEXCLAMATION, -1);
    });
    const auto boxIsSeen = [this] {
        return user.look().brightness(screen.width / 2, screen.height / 2 + 10) > 200;
    };
    EXPECT_TRUE(User::waitUntil(boxIsSeen));
    // The manager gives the keyboard when it sees fit; until then the key goes to the saver.
    EXPECT_TRUE(User::waitUntil([&] {
        user.press(XK_Return);
        return !boxIsSeen();
    }));
    EXPECT_EQ(exitStatus(), 0);
}

TEST(MessageDialogDeathTest, PrintsWhereNoBoxCanBeShown)
{
    EXPECT_EXIT(printWithoutDisplay(), ExitedWithCode(0), "^two\nlines\n$");
    EXPECT_EXIT(printInHostsWindow(), ExitedWithCode(0), "^two lines\n$");
}
