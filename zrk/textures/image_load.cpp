#include "zrk/textures/image_load.h"

#include "zrk/regular_file.h"
#include "zrk/textures/resample.h"

#include <SDL_image.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace zrk {

namespace {

// SDL_image's PNG decoder ignores the end of the file: in a file cut off before its image data it
// reads the same bytes for ever. So walk the chunks up to the first IDAT before decoding.
bool isPngWithoutImage(const char* name)
{
    const OwnedFile file = openRegularFile(name);
    unsigned char bytes[8];
    if (!file || std::fread(bytes, 1, 8, file.get()) != 8 ||
        std::memcmp(bytes, "\x89PNG\r\n\x1a\n", 8) != 0)
        return false;
    // A chunk: length of its data, big-endian; four letters; the data; a checksum of four bytes.
    constexpr std::uint32_t mostLength = 0x7fffffff - 4;
    while (std::fread(bytes, 1, 8, file.get()) == 8) {
        if (std::memcmp(bytes + 4, "IDAT", 4) == 0)
            return false;
        const std::uint32_t length = (std::uint32_t{bytes[0]} << 24) +
                                     (std::uint32_t{bytes[1]} << 16) +
                                     (std::uint32_t{bytes[2]} << 8) + bytes[3];
        if (length > mostLength ||
            std::fseek(file.get(), static_cast<long>(length) + 4, SEEK_CUR) != 0)
            break;
    }
    return true;
}

} // namespace

OwnedSurface loadImage(const char* fileName)
{
    if (fileName == nullptr || isPngWithoutImage(fileName))
        return nullptr;
    OwnedSurface image(IMG_Load(fileName));
    if (image &&
        (std::min(image->w, image->h) <= 0 || std::max(image->w, image->h) >= resampleLimit))
        image.reset();
    return image;
}

} // namespace zrk
