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

/// Whether a box shows a line of letters, to the right of its icon.
bool showsLetters(const User& user, const XWindowAttributes& box)
{
    constexpr int left = 65, width = 150, height = 60;
    const User::Picture picture = user.look();
    int dark = 0;
    for (int x = left; x < left + width; ++x)
        for (int y = 0; y < height; ++y)
            dark += picture.brightness(box.x + x, box.y + y) < 100 ? 1 : 0;
    // Of one letter there are about a hundred; all are dark while the saver covers the box.
    return dark > 300 && dark < width * height / 2;
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
        ASSERT_TRUE(User::waitUntil([&] { return showsLetters(user, box); }));
        const Window shown = focus();
        user.moveTo(5, 5); // on the saver, which the manager raises then
        user.click(1);
        ASSERT_TRUE(User::waitUntil([&] { return focus() != shown; }));
        EXPECT_TRUE(User::waitUntil([&] { return showsLetters(user, box); }));
        user.moveTo(box.x + 5, box.y + 5);
        user.click(1);
        ASSERT_TRUE(User::waitUntil([&] { return focus() == shown; }));
        constexpr int buttonsMiddle = 30; // above the lower edge
        user.moveTo(box.x + box.width / 2, box.y + box.height - buttonsMiddle);
        close();
        int status = -1;
        waitpid(program, &status, 0);
        EXPECT_EQ(status, 0);
    }
}
