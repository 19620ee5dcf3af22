#pragma once

#include <cstdio>

namespace zrk {

/// Whether SDL_image 1.2 can decode the GIF `file`, read from its start, without harm. Its decoder
/// does not notice the end of the file and follows whatever the LZW codes say. So the blocks up to
/// the first image, the only one that is decoded, must be complete, and every code must be one that
/// the codes before it have defined.
[[nodiscard]] bool isSoundGif(std::FILE* file);

} // namespace zrk
