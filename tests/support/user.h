#pragma once

#include <X11/Xlib.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

/// A user of the screen that DISPLAY names: looks at it, types and moves the mouse, over a
/// connection of its own.
class User {
public:
    struct Picture {
        int width = 0, height = 0;
        std::vector<unsigned char> rgb; ///< Rows from the top, three bytes a pixel.

        int brightness(int x, int y) const; ///< Of the brightest channel, 0 to 255.
    };

    User();
    User(const User&) = delete;
    User& operator=(const User&) = delete;
    ~User();

    /// Calls `condition` until it holds; false when it does not within `limit`.
    static bool waitUntil(const std::function<bool()>& condition,
                          std::chrono::milliseconds limit = std::chrono::seconds(20));

    /// Waits for a mapped top-level window of this title; 0 when none came in time.
    Window waitForWindow(const std::string& title) const;

    /// The mapped children of `parent` (0: of the root window), bottom-most first.
    std::vector<Window> mappedWindows(Window parent = 0) const;
    XWindowAttributes attributesOf(Window window) const;
    std::string titleOf(Window window) const;

    void press(KeySym key) const;
    void hold(KeySym key, bool down) const;
    void click(unsigned button) const;
    void moveTo(int x, int y) const;

    /// Sends the window a message of WM_PROTOCOLS, as a window manager does.
    void sendProtocol(Window window, const char* protocol) const;
    void askToClose(Window window) const { sendProtocol(window, "WM_DELETE_WINDOW"); }

    Picture look() const;
    Display* connection() const { return display; }

private:
    Display* display;
};
