#pragma once

#include "platform/win32_names.h"

#include <GL/glx.h>

#include <cstddef>
#include <span>

namespace platform::x11 {

/// What a window is created with so that OpenGL can draw on it.
struct WindowFormat {
    GLXFBConfig config = nullptr;
    Visual* visual = nullptr; ///< Belongs to the connection.
    int depth = 0;            ///< Of the visual, in bits per pixel.
    bool swapCopies = false;  ///< A swap leaves the back buffer unchanged (GLX_OML_swap_method).
};

/// Finds the best configuration for the saver's window on this screen. False when the server has no
/// GLX 1.3 or no suitable double-buffered TrueColor configuration. X errors are caught.
[[nodiscard]] bool chooseWindowFormat(Display* display, int screen, WindowFormat& result);

/// Whether such a configuration satisfies the descriptor. Its colour bits are ignored: the
/// configuration is the best one in any case.
[[nodiscard]] bool serves(const PIXELFORMATDESCRIPTOR& wanted);

/// The attributes of a configuration that the choice depends on; all numbers but `samples` are
/// bits.
struct FormatTraits {
    int visualDepth = 0;
    int red = 0, green = 0, blue = 0, alpha = 0;
    int depth = 0, stencil = 0, accumulation = 0;
    int samples = 0;
    bool slow = false;       ///< The driver marks it as slow or non-conformant.
    bool swapCopies = false; ///< As in `WindowFormat`.
};

/// The index of the best of them, the first among equals; their number when none is suitable. A
/// visual of 32 bits is never suitable: a compositor would blend it with the desktop by its alpha.
[[nodiscard]] std::size_t bestFormat(std::span<const FormatTraits> formats);

} // namespace platform::x11
