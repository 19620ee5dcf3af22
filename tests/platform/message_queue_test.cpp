#include "platform/signals.h"
#include "tests/platform/test_window.h"
#include "tests/support/headless_desktop.h"

#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Ends the process: 0 when `signal` closed a window once and can be waited for.
[[noreturn]] void endBy(int signal)
{
    platform::installEndSignals();
    raise(signal);
    pump(); // nobody to tell yet
    const TestWindow window;
    const auto next = [] {
        MSG message;
        return PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE ? message.message : 0;
    };
    pollfd end{.fd = platform::endSignalDescriptor(), .events = POLLIN, .revents = 0};
    std::_Exit(next() == WM_CLOSE && next() == 0 && poll(&end, 1, 0) == 1 ? 0 : 1);
}

} // namespace

TEST(MessageQueue, GivesInputInOrderAndTheQuitLastAndOnce)
{
    const TestWindow window;
    takeSent();
    PostQuitMessage(3);
    headless_desktop::play(WM_KEYDOWN, VK_TAB);
    headless_desktop::playMouse(WM_RBUTTONDOWN, {4, 5});
    headless_desktop::play(WM_KEYUP, VK_TAB);
    headless_desktop::play(WM_CLOSE);
    pump();
    EXPECT_THAT(takeSent(), ElementsAre("WM_KEYDOWN 9", "WM_RBUTTONDOWN 4 5", "WM_KEYUP 9",
                                        "WM_CLOSE 0", "WM_QUIT 3"));
    pump();
    EXPECT_THAT(takeSent(), IsEmpty());
}

TEST(MessageQueue, SendsSizesAndActivationsWithoutReturningThem)
{
    const TestWindow window;
    takeSent();
    const auto minimised = static_cast<WPARAM>(MAKELPARAM(WA_INACTIVE, 1));
    headless_desktop::play(WM_ACTIVATE, minimised);
    headless_desktop::play(WM_SIZE, SIZE_RESTORED, MAKELPARAM(640, 480));
    MSG message;
    EXPECT_FALSE(PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_THAT(takeSent(), ElementsAre("WM_ACTIVATE 65536", "WM_SIZE 640 480"));
}

TEST(MessageQueue, KeepsWhatIsNotRemoved)
{
    const TestWindow window;
    headless_desktop::play(WM_CLOSE);
    MSG message{};
    EXPECT_TRUE(PeekMessageA(&message, nullptr, 0, 0, 0));
    EXPECT_TRUE(PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, WM_CLOSE);
    EXPECT_EQ(message.hwnd, window.handle);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE));
}

TEST(MessageQueue, DropsWhatIsForADestroyedWindow)
{
    const TestWindow window;
    const HWND other = createTestWindow();
    headless_desktop::play(WM_CLOSE);
    headless_desktop::play(WM_CLOSE);
    MSG message;
    EXPECT_TRUE(PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE));
    DestroyWindow(other);
    takeSent();
    DispatchMessageA(&message);
    pump();
    EXPECT_THAT(takeSent(), IsEmpty());
}

TEST(MessageQueue, LetsManySmallMovesMakeTheWholePath)
{
    const TestWindow window;
    takeSent();
    headless_desktop::setPointer({90, 90}); // already there when the first move is handled
    for (const POINT place : {POINT{0, 0}, POINT{90, 0}, POINT{90, 90}})
        headless_desktop::playMouse(WM_MOUSEMOVE, place);
    pump();
    EXPECT_THAT(takeSent(),
                ElementsAre("WM_MOUSEMOVE 0 0", "WM_MOUSEMOVE 90 0", "WM_MOUSEMOVE 90 90"));
    headless_desktop::setPointer({50, 60});
    POINT position{};
    EXPECT_TRUE(GetCursorPos(&position)); // no message is being handled
    EXPECT_EQ(position.x, 50);
}

TEST(DefaultProcedure, ClosesByAltF4AndDoesNothingElse)
{
    const TestWindow window;
    takeSent();
    headless_desktop::play(WM_SYSKEYDOWN, VK_TAB);
    headless_desktop::play(WM_KEYDOWN, VK_F4);
    pump();
    EXPECT_THAT(takeSent(), ElementsAre("WM_SYSKEYDOWN 9", "WM_KEYDOWN 115"));
    headless_desktop::play(WM_SYSKEYDOWN, VK_F4);
    pump();
    EXPECT_THAT(takeSent(), ElementsAre("WM_SYSKEYDOWN 115", "WM_CLOSE 0"));
    EXPECT_EQ(headless_desktop::thingsLeft(), 1U);
}

TEST(EndSignal, AsksTheWindowToCloseOnce)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        EXPECT_EXIT(endBy(signal), testing::ExitedWithCode(0), "");
}
