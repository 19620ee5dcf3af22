#pragma once

#include <cstdio>

namespace zrk {

/// Whether SDL_image 1.2 can decode the XPM `file`, read from its start, without harm. Its decoder
/// crashes where a row or the colour of a pixel is missing, and takes the sizes in the header for
/// granted. So every line that the header announces must be there in its full length.
[[nodiscard]] bool isSoundXpm(std::FILE* file);

} // namespace zrk
