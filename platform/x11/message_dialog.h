#pragma once

#include "platform/desktop.h"

namespace platform::x11 {

/// Implements `desktop::messageBox` for an open connection. False when FLTK cannot connect to the
/// display.
[[nodiscard]] bool runMessageDialog(const char* text, const char* caption, UINT type,
                                    int endDescriptor);

} // namespace platform::x11
