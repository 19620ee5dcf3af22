#pragma once

#include "zrk/textures/owned_surface.h"

namespace zrk {

/// Decodes the image file `fileName` in whatever pixel format it has. Null when the name is null,
/// when the file cannot be decoded, or when the image has no pixels or more than
/// `resampleNearest` can address.
[[nodiscard]] OwnedSurface loadImage(const char* fileName);

} // namespace zrk
