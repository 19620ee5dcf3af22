#pragma once

#include <gtest/gtest.h> // before Xlib, which makes a macro of a name of its

#include "platform/desktop.h"
#include "tests/support/user.h"
#include "tests/support/virtual_display.h"

#include <algorithm>
#include <vector>

/// A real desktop of 1024 by 768 without a window manager, the program's side of the port, and a
/// user before the screen.
class DesktopFixture : public testing::Test {
protected:
    static constexpr platform::desktop::Size screen{1024, 768};

    // The port goes last but before its server, whose loss would end this process as a success.
    ~DesktopFixture() override { platform::desktop::disconnect(); }

    /// Opens and shows a window as the program does.
    platform::desktop::NativeWindow open(platform::desktop::Size client = {800, 600})
    {
        using namespace platform::desktop;
        const NativeWindow window = createWindow("title", 0, 0, client);
        showWindow(window);
        raiseWindow(window);
        focusWindow(window);
        return window;
    }

    /// The next message of this kind, whatever came before or between; its kind is 0 when none
    /// came in time.
    platform::desktop::Message next(UINT kind)
    {
        platform::desktop::Message message;
        User::waitUntil([&] {
            if (!hasCome(kind))
                return false;
            message = *find(kind);
            unread.erase(find(kind));
            return true;
        });
        return message;
    }

    bool hasCome(UINT kind)
    {
        for (platform::desktop::Message message; platform::desktop::nextMessage(message);)
            unread.push_back(message);
        return find(kind) != unread.end();
    }

    VirtualDisplay display{"1024x768x24"};
    User user;

private:
    std::vector<platform::desktop::Message>::iterator find(UINT kind)
    {
        return std::find_if(unread.begin(), unread.end(),
                            [kind](const auto& each) { return each.message == kind; });
    }

    std::vector<platform::desktop::Message> unread;
};
