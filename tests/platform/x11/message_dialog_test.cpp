#include "tests/platform/x11/desktop_fixture.h"

#include <X11/keysym.h>

#include <cstdlib>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

using namespace platform::desktop;

namespace {

class MessageDialog : public DesktopFixture {
protected:
    Window focus() const
    {
        Window focused = 0;
        int revert = 0;
        XGetInputFocus(server, &focused, &revert);
        return focused;
    }
};

// Of a box's first lines, to the right of its icon. All are dark while the saver covers them.
int darkPercent(const User& user, const XWindowAttributes& box)
{
    constexpr int left = 65, height = 60;
    const User::Picture picture = user.look();
    int darkPixels = 0;
    for (int x = left; x < box.width; ++x)
        for (int y = 0; y < height; ++y)
            darkPixels += picture.brightness(box.x + x, box.y + y) < 100 ? 1 : 0;
    return 100 * darkPixels / ((box.width - left) * height);
}

} // namespace

TEST_F(MessageDialog, ShowsTheTextAboveTheSaverUntilItIsClosedInAnyUsualWay)
{
    const std::function<void()> ways[] = {
        [this] { user.press(XK_Return); },    [this] { user.press(XK_KP_Enter); },
        [this] { user.press(XK_space); },     [this] { user.press(XK_Escape); },
        [this] { user.askToClose(focus()); }, [this] { user.click(1); }};
    manage();
    disconnect(); // the program connects by itself
    for (const auto& close : ways) {
        const pid_t program = fork();
        if (program == 0) {
            EXPECT_TRUE(placeWindow(open(), 0, 0, screen, true));
            messageBox("a@MMMMMMMM\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n", "ERROR", MB_OK, -1);
            disconnect();
            std::exit(0);
        }
        ASSERT_TRUE(User::waitUntil([&] { return user.titleOf(focus()) == "ERROR"; }));
        XWindowAttributes box = user.attributesOf(focus());
        Window child = 0;
        XTranslateCoordinates(server, focus(), box.root, 0, 0, &box.x, &box.y, &child);
        EXPECT_GT(box.height, box.width); // there are lines
        EXPECT_TRUE(User::waitUntil([&] { return darkPercent(user, box) < 50; }));
        EXPECT_GT(darkPercent(user, box), 2); // of one letter there are a few dozen pixels
        constexpr int buttonsMiddle = 30;     // above the lower edge
        user.moveTo(box.x + box.width / 2, box.y + box.height - buttonsMiddle);
        close();
        int status = -1;
        waitpid(program, &status, 0);
        EXPECT_EQ(status, 0);
    }
}
