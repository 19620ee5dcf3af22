#pragma once

#include "platform/win32.h"

#include <cstdint>

/// The port: the functions of a desktop system that the Win32 calls are built on. `platform/x11`
/// implements them on X11; tests link a headless implementation. All are called from the program's
/// one thread.
///
/// Positions are in pixels from the top left corner of the *desktop*: the primary monitor, or the
/// host's window where a host gave us one. A failure is a return value; the port shows no message
/// of its own except where said.
namespace platform::desktop {

/// The port's name for a window; 0 is none.
using NativeWindow = std::uintptr_t;

/// The port's name for an OpenGL context; null is none.
using NativeContext = void*;

struct Size {
    int width = 0, height = 0;

    bool operator==(const Size&) const = default;
};

/// Something that happened to a window, as a Win32 message with its parameters.
struct Message {
    NativeWindow window = 0;
    UINT message = 0;
    WPARAM wParam = 0; ///< For WM_ACTIVATE: the high word is 1 while the window is minimised.
    LPARAM lParam = 0;
    POINT pointer{}; ///< For a mouse message: the pointer's position on the desktop.
    Size client{};   ///< For WM_SIZE: the size to tell (`toldSize`), which is not in `lParam`.
};

/// Finds out whether the program was started by a host, to draw in one of its windows. The window's
/// number, decimal or with 0x, follows `--window-id` among the arguments, or else is in the
/// environment variable XSCREENSAVER_WINDOW, where an empty value counts as unset. If a window was
/// given, even by an argument without a number, and there is no such window, connecting ends the
/// process with status 1 and a line on standard error. To be called before all other functions.
void chooseHost(int argumentCount, const char* const* arguments);

/// The desktop's size; false when it is not known. The first call connects: without a desktop the
/// process ends with status 1 and a line on standard error. From then on it exits with status 0 as
/// soon as the desktop, or the host's window, is gone.
[[nodiscard]] bool size(Size& result);

/// Where the pointer is now.
[[nodiscard]] bool pointerPosition(POINT& result);

/// The next message, in order; false when none waits. Sizes come last: after a window was created,
/// placed, or resized by others, the size that it has by now is reported once, whether or not it
/// differs from the size before.
[[nodiscard]] bool nextMessage(Message& result);

/// Closes the connection to the desktop, with every window and context. Does nothing without one.
void disconnect();

/// Creates an undecorated window, not yet shown, that supports the best double-buffered pixel
/// format there is. 0 when it cannot be created.
[[nodiscard]] NativeWindow createWindow(const char* title, int x, int y, Size client);
[[nodiscard]] bool destroyWindow(NativeWindow window);

/// Shows the window, raises it, gives it the keyboard focus. The window appears with its first
/// frame, which the next `swapBuffers` shows: nothing covers the screen before there is something
/// to see. Raising and focus are done then.
void showWindow(NativeWindow window);
void raiseWindow(NativeWindow window);
void focusWindow(NativeWindow window);
[[nodiscard]] bool placeWindow(NativeWindow window, int x, int y, Size client, bool topmost);

/// What the program is told of a client area of this size: it, or that of a smaller picture, which
/// the port enlarges to the window.
[[nodiscard]] Size toldSize(Size client);

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

/// Puts what was drawn on the screen, when the next frame is due. The back buffer keeps its
/// contents.
[[nodiscard]] bool swapBuffers(NativeWindow window);

/// The entry point of an OpenGL extension; null when no context is current. One that is not null
/// does not say that the driver has the extension: ask GL_EXTENSIONS first.
[[nodiscard]] PROC glProcedure(const char* name);

/// Shows a message box with an OK button and returns when it is closed, or when `endDescriptor`
/// (-1: none) becomes readable. The box has the keyboard focus, and the pointer is visible over our
/// windows too. Inside a host's window, and where no box can be made, the text goes to standard
/// error instead. Connects if necessary.
void messageBox(const char* text, const char* caption, UINT type, int endDescriptor);

/// Sets or clears the desktop-wide flag that a screen saver is running. However this process ends,
/// the flag is cleared.
void setScreenSaverRunning(bool running);

} // namespace platform::desktop
