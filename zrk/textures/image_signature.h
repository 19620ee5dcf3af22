#pragma once

#include <cstdio>

namespace zrk {

/// Whether SDL_image 1.2 may decode `file`, which is read from its start: the first bytes are the
/// signature of a format, and the file is not one of those on which the format's decoder hangs or
/// crashes. TGA has no signature; its decoder stands any file.
///
/// | Format | What is checked beyond the signature |
/// |---|---|
/// | BMP, CUR, ICO, JPEG, TIFF, WEBP | nothing: a faulty file is an error, or an image |
/// | PNG | the chunks up to the image data |
/// | LBM | the chunks up to the image data |
/// | PCX, PNM | the sizes in the header |
/// | GIF | the blocks and codes of the first image, see `isSoundGif` |
/// | XPM | the quoted lines, see `isSoundXpm` |
/// | XCF, XV | refused: their decoders cannot be trusted with a faulty file |
[[nodiscard]] bool isDecodable(std::FILE* file);

} // namespace zrk
