#pragma once

#include "tools/caustics/sphere_map.h"

#include <string>

namespace caustics {

/// The picture as the bytes of a PNG file: 8-bit indices into the colours of caustics, from black
/// through azure to white-hot. Throws std::runtime_error if libpng fails.
std::string encodePng(const GreyPicture& picture);

} // namespace caustics
