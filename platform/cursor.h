#pragma once

namespace platform {

/// Whether the pointer is to be seen over our windows, as ShowCursor left it.
[[nodiscard]] bool pointerShown();

} // namespace platform
