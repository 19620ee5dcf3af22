#pragma once

#include <X11/Xlib.h>

namespace platform::x11 {

/// The virtual-key code, below 256, of a keysym; 0 for one that has none.
[[nodiscard]] int virtualKeyOf(KeySym keysym);

/// The virtual-key code of the key of a press or release: by what is written on the key, whatever
/// Shift, Caps Lock and the language say; 0 for a key that has none.
[[nodiscard]] int virtualKey(const XKeyEvent& event);

} // namespace platform::x11
