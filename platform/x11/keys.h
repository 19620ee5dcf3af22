#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// The virtual-key code, below 256, of a keysym; 0 for one that has none.
[[nodiscard]] int virtualKeyOf(KeySym keysym);

/// The virtual-key code of the key that was pressed or released, independent of Shift, Caps Lock
/// and the active keyboard layout; 0 for a key that has none.
[[nodiscard]] int virtualKey(const XKeyEvent& event);

} // namespace platform::x11
