#pragma once

#include "platform/desktop.h"

#include <X11/Xlib.h>

/// The render scale: how many pixels of the window, along each axis, a drawn pixel is enlarged to.
/// A software renderer cannot draw every pixel of a large window sixty times a second.
namespace platform::x11 {

constexpr int largestScale = 8;

/// The scale that `text`, the value of QUAZO_RENDER_SCALE, sets: 1 to `largestScale`. 0 for a null
/// or empty text, and, after a line on standard error, for any other.
[[nodiscard]] int givenScale(const char* text);

/// The smallest scale with which a software renderer and the server hold the pace in a window of
/// this size with about one core; with half a core where there is only one, and with a quarter of
/// the cores where there are more than four.
[[nodiscard]] int softwareScale(desktop::Size window, unsigned int cores);

/// From now on all windows have the given scale, or else the one that `softwareScale` gives, if the
/// current context draws in software. Before the first call, and where `possible` is false, the
/// scale is 1.
void chooseScaling(Display* display, bool possible);

/// The scale of a window of this size.
[[nodiscard]] int renderScale(desktop::Size window);

/// The size of the picture that is drawn for a window of this size; parts of a pixel count as one.
[[nodiscard]] desktop::Size pictureSize(desktop::Size window);

} // namespace platform::x11
