#include "tests/platform/test_window.h"

using headless_desktop::play;
using testing::ElementsAre;

using MessageQueue = TestWindow;

TEST_F(MessageQueue, GivesInputInOrderAndTheQuitLastAndOnce)
{
    PostQuitMessage(3);
    play(WM_KEYDOWN, VK_TAB);
    play(WM_SYSKEYDOWN, VK_TAB);
    play(WM_SYSKEYDOWN, VK_F4); // asks to close, and destroys nothing by itself
    play(WM_ACTIVATE, 0x10000);
    play(WM_KEYUP, VK_TAB);
    EXPECT_THAT(takeSent(),
                ElementsAre(Sent{WM_KEYDOWN, VK_TAB}, Sent{WM_SYSKEYDOWN, VK_TAB},
                            Sent{WM_SYSKEYDOWN, VK_F4}, Sent{WM_CLOSE, 0},
                            Sent{WM_ACTIVATE, 0x10000}, Sent{WM_KEYUP, VK_TAB}, Sent{WM_QUIT, 3}));
    EXPECT_THAT(takeSent(), testing::IsEmpty());
    EXPECT_TRUE(DestroyWindow(window));
}

// takeSent() dispatches one batch, after which the program looks at the state of its keys.
TEST_F(MessageQueue, HoldsBackATapsReleaseAndNothingElse)
{
    for (const UINT message : {WM_KEYDOWN, WM_KEYUP, WM_KEYDOWN, WM_KEYUP})
        play(message, VK_TAB);
    play(WM_SYSKEYDOWN, VK_ESCAPE);
    play(WM_SYSKEYUP, VK_ESCAPE);
    play(WM_LBUTTONDOWN);
    EXPECT_THAT(takeSent(), ElementsAre(Sent{WM_KEYDOWN, VK_TAB}, Sent{WM_KEYUP, VK_TAB},
                                        Sent{WM_KEYDOWN, VK_TAB}, Sent{WM_SYSKEYDOWN, VK_ESCAPE},
                                        Sent{WM_LBUTTONDOWN, 0}));
    play(WM_KEYDOWN, 'A'); // a longer press
    EXPECT_THAT(takeSent(), ElementsAre(Sent{WM_KEYUP, VK_TAB}, Sent{WM_SYSKEYUP, VK_ESCAPE},
                                        Sent{WM_KEYDOWN, 'A'}));
    play(WM_KEYUP, 'A');
    EXPECT_THAT(takeSent(), ElementsAre(Sent{WM_KEYUP, 'A'}));
}

TEST_F(MessageQueue, SendsASizeAtOnceAndDropsWhatIsForADestroyedWindow)
{
    const HWND other = create();
    takeSent();
    headless_desktop::resize({640, 480});
    play(WM_CLOSE);
    play(WM_CLOSE);
    MSG message{};
    for (const UINT remove : {0u, PM_REMOVE}) { // without PM_REMOVE it stays in the queue
        EXPECT_TRUE(PeekMessageA(&message, nullptr, 0, 0, remove));
        EXPECT_EQ(message.hwnd, other);
    }
    DestroyWindow(other);
    DispatchMessageA(&message);
    EXPECT_THAT(takeSent(), ElementsAre(Sent{WM_SIZE, MAKELPARAM(640, 480)}));
}

TEST_F(MessageQueue, LetsManySmallMovesMakeTheWholePath)
{
    headless_desktop::setPointer({90, 95}); // already there when the first move is handled
    for (const POINT place : {POINT{0, 0}, POINT{90, 0}, POINT{90, 90}})
        play(WM_MOUSEMOVE, 0, 0, place);
    EXPECT_THAT(takeSent(), ElementsAre(Sent{WM_MOUSEMOVE, 0}, Sent{WM_MOUSEMOVE, 90},
                                        Sent{WM_MOUSEMOVE, MAKELPARAM(90, 90)}));
    POINT position{};
    EXPECT_TRUE(GetCursorPos(&position)); // no message is being handled
    EXPECT_EQ(position.y, 95);
}
