#pragma once

#include "zrk/textures/owned_surface.h"

namespace zrk {

/// Decodes the image file `fileName`, in whatever pixel format it has. Returns null for a null
/// name, for anything but a regular file, for a file that is not `isDecodable` and does not end in
/// .tga, and for one that SDL_image cannot decode. The image's size is one that
/// `fitsSurface`, and it has one byte per pixel and a palette, or two to four bytes.
[[nodiscard]] OwnedSurface loadImage(const char* fileName);

} // namespace zrk
