#pragma once

#include <gtest/gtest.h> // before Xlib, which makes a macro of a name of its

#include "platform/desktop.h"
#include "platform/x11/display.h"
#include "platform/x11/window_manager.h"
#include "tests/support/user.h"
#include "tests/support/virtual_display.h"

#include <optional>

/// An X server with a screen of 1024 x 768 and no window manager, the port connected to it, and a
/// user.
class DesktopFixture : public testing::Test {
protected:
    static constexpr platform::desktop::Size screen{1024, 768};

    // Disconnects before the server goes: a lost connection would exit this process with status 0.
    ~DesktopFixture() override { platform::desktop::disconnect(); }

    /// Opens a window of 800 by 600 with a current context, as the program does; it appears with
    /// its first frame.
    static platform::desktop::NativeWindow open()
    {
        using namespace platform::desktop;
        const NativeWindow window = createWindow("title", 0, 0, {800, 600});
        EXPECT_TRUE(makeCurrent(window, createContext(window)));
        showWindow(window);
        raiseWindow(window);
        focusWindow(window);
        return window;
    }

    static platform::desktop::NativeWindow openAndShow()
    {
        const platform::desktop::NativeWindow window = open();
        EXPECT_TRUE(platform::desktop::swapBuffers(window));
        return window;
    }

    /// The next message of either kind; those before it are dropped. Its kind is 0 when none came
    /// in time.
    static platform::desktop::Message next(UINT kind, UINT otherKind = 0)
    {
        platform::desktop::Message message;
        const bool hasCome = User::waitUntil([&] {
            while (platform::desktop::nextMessage(message))
                if (message.message == kind || message.message == otherKind)
                    return true;
            return false;
        });
        return hasCome ? message : platform::desktop::Message{};
    }

    /// Starts a window manager and connects the port.
    void manage()
    {
        using namespace platform::x11;
        manager.emplace(std::vector<std::string>{QUAZO_OPENBOX, "--sm-disable"});
        EXPECT_TRUE(User::waitUntil([] { return managerRuns(openConnection()); }));
    }

    VirtualDisplay display{"1024x768x24"};
    User user;
    Display* const server = user.connection();
    std::optional<ChildProcess> manager;
};
