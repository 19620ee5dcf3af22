#pragma once

#include "platform/desktop.h"

namespace platform::x11 {

/// Shows `desktop::messageBox`'s box over the connection's windows and returns once it is closed.
/// False when there is no display for it.
[[nodiscard]] bool runMessageDialog(const char* text, const char* caption, UINT type,
                                    int endDescriptor);

} // namespace platform::x11
