#include "tests/platform/x11/desktop_fixture.h"

#include <X11/extensions/Xfixes.h>
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

    /// The attributes of a window, with its position on the screen.
    XWindowAttributes placeOf(Window window) const
    {
        XWindowAttributes place = user.attributesOf(window);
        Window child = 0;
        XTranslateCoordinates(server, window, place.root, 0, 0, &place.x, &place.y, &child);
        return place;
    }

    /// Forks a program that covers the screen and shows a box. Its status is 0 if after the box it
    /// gets a click on its window (`clicked`), or gets none.
    pid_t startProgram(bool clicked)
    {
        const pid_t program = fork();
        if (program == 0) {
            const NativeWindow saver = open();
            showPointer(saver, false);
            EXPECT_TRUE(placeWindow(saver, 0, 0, screen, true) && swapBuffers(saver));
            messageBox("a@MMMMMMMM\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n", "ERROR", MB_OK, -1);
            Message message;
            bool found = false;
            while (nextMessage(message))
                found |= message.message == WM_LBUTTONDOWN;
            disconnect();
            _exit(found == clicked ? 0 : 1); // LeakSanitizer may crash while threads end
        }
        EXPECT_TRUE(User::waitUntil([&] { return user.titleOf(focus()) == "ERROR"; }));
        return program;
    }

    static int statusOf(pid_t program)
    {
        int status = -1;
        waitpid(program, &status, 0);
        return status;
    }
};

/// Whether the box shows a line of letters to the right of its icon.
bool showsLetters(const User& user, const XWindowAttributes& box)
{
    constexpr int left = 65, width = 150, height = 60;
    const User::Picture picture = user.look();
    int dark = 0;
    for (int x = left; x < left + width; ++x)
        for (int y = 0; y < height; ++y)
            dark += picture.brightness(box.x + x, box.y + y) < 100 ? 1 : 0;
    // A letter has about a hundred dark pixels; where the saver covers the box, all are dark.
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
        const pid_t program = startProgram(false);
        const XWindowAttributes box = placeOf(focus());
        EXPECT_GT(box.height, box.width); // there are lines
        ASSERT_TRUE(User::waitUntil([&] { return showsLetters(user, box); }));
        constexpr int buttonsMiddle = 30; // above the lower edge
        user.moveTo(box.x + box.width / 2, box.y + box.height - buttonsMiddle);
        close();
        EXPECT_EQ(statusOf(program), 0);
    }
}

TEST_F(MessageDialog, HasTheKeyboardAndThePointerWhateverIsDoneToTheSaverBehindIt)
{
    manage();
    disconnect();
    const pid_t program = startProgram(true);
    const Window box = focus();
    Window saver = 0;
    XGetTransientForHint(server, box, &saver);
    XSelectInput(server, saver, FocusChangeMask);
    XSelectInput(server, DefaultRootWindow(server), SubstructureNotifyMask);
    user.moveTo(5, 5);
    user.click(1);
    const auto comes = [this](Window window, int type) {
        XEvent event;
        return XCheckTypedWindowEvent(server, window, type, &event) != False;
    };
    EXPECT_TRUE(User::waitUntil([&] { return comes(saver, FocusIn); }));
    EXPECT_TRUE(User::waitUntil([&] { return focus() == box; }));
    EXPECT_TRUE(User::waitUntil([&] { return showsLetters(user, placeOf(box)); })); // not below
    XFixesCursorImage* const cursor = XFixesGetCursorImage(server);
    EXPECT_GT(cursor->width, 1); // the hidden one is a single pixel
    XFree(cursor);
    user.sendProtocol(saver, "_NET_WM_PING");
    EXPECT_TRUE(User::waitUntil([&] { return comes(DefaultRootWindow(server), ClientMessage); }));
    XEvent press{}; // as where a manager leaves the keyboard with the saver
    press.xkey.type = KeyPress;
    press.xkey.keycode = XKeysymToKeycode(server, XK_Escape);
    XSendEvent(server, saver, False, KeyPressMask, &press);
    XFlush(server);
    EXPECT_EQ(statusOf(program), 0);
}
