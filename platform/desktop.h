#pragma once

#include "platform/win32_names.h"

#include <cstdint>

/// The port: what a desktop must do for the Win32 names. `platform/x11` does it on a real one;
/// tests link a headless one instead. Everything here is called from the program's one thread.
///
/// Positions are in pixels from the top left corner of the *desktop*: the primary monitor, or the
/// host's window where a host gave us one. Failure is a result, never a message of the port's own,
/// save where said.
namespace platform::desktop {

/// A window as the desktop knows it; 0 is none.
using NativeWindow = std::uintptr_t;

/// An OpenGL context as the desktop knows it; null is none.
using NativeContext = void*;

struct Size {
    int width = 0, height = 0;

    bool operator==(const Size&) const = default;
};

/// Something that happened to a window, in Win32's terms: `message` with its parameters.
struct Message {
    NativeWindow window = 0;
    UINT message = 0;
    WPARAM wParam = 0; ///< For WM_ACTIVATE the high word is 1 while the window is minimised.
    LPARAM lParam = 0;
    POINT pointer{}; ///< For a mouse message where the pointer was on the desktop.
    Size client{};   ///< For WM_SIZE the client area's size, which `lParam` does not tell.
};

/// Finds out whether the program was started to draw in another one's window: `--window-id N`
/// among its arguments, else the environment's XSCREENSAVER_WINDOW, a number in decimal or with
/// 0x. True when something is given there, be it an argument without a number; if that is no
/// window, connecting ends the process with status 1 and a line on standard error. An empty
/// variable is none given. Call it before anything else here.
bool chooseHost(int argumentCount, const char* const* arguments);

/// The desktop's size; false when there is no desktop to draw on. The first call connects.
[[nodiscard]] bool size(Size& result);

/// Where the pointer is now.
[[nodiscard]] bool pointerPosition(POINT& result);

/// The next thing that happened, in order; false when nothing waits. Sizes come last: after a
/// window was made, placed, or resized by others, the size that it has by now is reported once,
/// whether or not it is news.
[[nodiscard]] bool nextMessage(Message& result);

/// Ends the connection; every window and context is gone with it. Harmless without one.
void disconnect();

/// Makes an undecorated window, not yet shown, able to take the best double-buffered pixel format
/// there is. 0 when it cannot be made.
[[nodiscard]] NativeWindow createWindow(const char* title, int x, int y, Size client);
[[nodiscard]] bool destroyWindow(NativeWindow window);

/// Shows the window and returns once it is on the screen, or after a second without an answer.
void showWindow(NativeWindow window);
void raiseWindow(NativeWindow window);
void focusWindow(NativeWindow window);
[[nodiscard]] bool placeWindow(NativeWindow window, int x, int y, Size client, bool topmost);

/// Shows or hides the pointer while it is over the window.
void showPointer(NativeWindow window, bool visible);

/// The number, from 1, of the pixel format of this window that serves `descriptor`; 0 when none
/// does.
[[nodiscard]] int choosePixelFormat(NativeWindow window, const PIXELFORMATDESCRIPTOR& descriptor);
[[nodiscard]] bool setPixelFormat(NativeWindow window, int format);
[[nodiscard]] NativeContext createContext(NativeWindow window);

/// Makes `context` current on `window`; with a null context leaves none current.
[[nodiscard]] bool makeCurrent(NativeWindow window, NativeContext context);
[[nodiscard]] bool deleteContext(NativeContext context);

/// Shows what was drawn and leaves it in the back buffer as well.
[[nodiscard]] bool swapBuffers(NativeWindow window);

/// An OpenGL extension's entry point; null when there is none.
[[nodiscard]] PROC glProcedure(const char* name);

/// Shows a box with an OK button and waits until it is pressed. It has the keyboard, and the
/// pointer is seen over our windows too, until then. Without a display, or inside a host's window,
/// the text goes to standard error instead. Works with and without a connection. Also returns as
/// soon as `endDescriptor` can be read; -1 is none.
void messageBox(const char* text, const char* caption, UINT type, int endDescriptor);

/// Tells the rest of the desktop that a screen saver is running; the word is taken back also
/// when this process dies.
void setScreenSaverRunning(bool running);

} // namespace platform::desktop
