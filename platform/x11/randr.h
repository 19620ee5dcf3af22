#pragma once

#include <X11/extensions/Xrandr.h>
#include <X11/Xlib.h>

#include <memory>

/// The extension that knows of monitors.
namespace platform::x11 {

/// The first number of RandR's events; -1 where the server does not have it.
[[nodiscard]] int firstRandrEvent(Display* display);

/// Whether the server has RandR 1.`minor` or newer.
[[nodiscard]] bool hasRandr(Display* display, int minor);

using ScreenResources = std::unique_ptr<XRRScreenResources, decltype(&XRRFreeScreenResources)>;

/// The server's outputs, their modes and what shows them, as it knows them already: to look for new
/// ones blanks the screen with some drivers. Null before RandR 1.3.
[[nodiscard]] ScreenResources screenResources(Display* display);

} // namespace platform::x11
