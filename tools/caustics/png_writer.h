#pragma once

#include "tools/caustics/sphere_map.h"

#include <string>

namespace caustics {

/// The picture as a PNG file: 8-bit indices into a palette that runs from black through azure to
/// near white. Throws std::runtime_error if libpng fails.
std::string encodePng(const GreyPicture& picture);

} // namespace caustics
