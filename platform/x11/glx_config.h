#pragma once

#include "platform/win32_names.h"

#include <GL/glx.h>

#include <cstddef>
#include <span>

namespace platform::x11 {

/// How a window must be made so that OpenGL can draw on it.
struct WindowFormat {
    GLXFBConfig config = nullptr;
    Visual* visual = nullptr; ///< Belongs to the connection.
    int depth = 0;            ///< Of the visual, in bits a pixel.
    bool swapCopies = false;  ///< The back buffer is certain to keep its picture over a swap.
};

/// The best configuration for the saver's window on this screen; false when the server has no GLX
/// 1.3 or no double-buffered TrueColor configuration that may be used. X errors are caught.
[[nodiscard]] bool chooseWindowFormat(Display* display, int screen, WindowFormat& result);

/// Whether such a configuration is what the descriptor asks for. Its colour bits are not looked at:
/// there are never more to be had.
[[nodiscard]] bool serves(const PIXELFORMATDESCRIPTOR& wanted);

/// What the choice looks at in one configuration; every count is in bits, save `samples`.
struct FormatTraits {
    int visualDepth = 0;
    int red = 0, green = 0, blue = 0, alpha = 0;
    int depth = 0, stencil = 0, accumulation = 0;
    int samples = 0;
    bool slow = false;       ///< The driver says so itself.
    bool swapCopies = false; ///< As in `WindowFormat`.
};

/// The position of the best of them; their count when none may be used. A visual of 32 bits never
/// may: a compositor would let the desktop shine through its alpha. Of equals the first is best.
[[nodiscard]] std::size_t bestFormat(std::span<const FormatTraits> formats);

} // namespace platform::x11
