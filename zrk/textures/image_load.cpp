#include "zrk/textures/texture.h"

#include "zrk/renderer.h"
#include "zrk/text_file.h"
#include "zrk/textures/rgba32_format.h"

#include <SDL_image.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ostream>
#include <utility>

namespace zrk {

namespace {

// Pixels in a direction; from here on 16.16 steps overflow. SDL 1.2 itself makes no image of 16384
// columns or 65536 rows; an SDL that stands in for it may.
constexpr int sizeLimit = 65536;

// The PNG decoder does not notice the end of a file: in one that is cut off before its image data
// it reads the same bytes over and over, for ever. Such a file is not shown to it.
bool isPngWithoutImage(const char* name)
{
    const OwnedFile file(std::fopen(name, "rb"));
    unsigned char bytes[8];
    if (!file || std::fread(bytes, 1, 8, file.get()) != 8 ||
        std::memcmp(bytes, "\x89PNG\r\n\x1a\n", 8) != 0)
        return false;
    // Chunks: length, high byte first, and name; so many bytes; a checksum of four.
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

/// Null when there is no image, or none that a texture could hold.
OwnedSurface decode(const char* name)
{
    if (name == nullptr || isPngWithoutImage(name))
        return nullptr;
    OwnedSurface image(IMG_Load(name));
    if (image && (std::min(image->w, image->h) <= 0 || std::max(image->w, image->h) >= sizeLimit))
        image.reset();
    return image;
}

} // namespace

std::int32_t Texture::load(const char* name, std::ostream* log)
{
    OwnedSurface image = decode(name);
    if (!image) {
        if (log != nullptr)
            *log << "Error: cannot load image '" << (name != nullptr ? name : "") << "'\n"
                 << std::flush;
        return -1;
    }
    freeSurface();
    surface = image->format->BytesPerPixel == 1 ? std::move(image) : toRgba32(*image);
    if (!surface || !limitSize())
        return -1;
    fileName = name;
    return 0;
}

bool Texture::limitSize()
{
    const auto width = std::min(static_cast<std::uint32_t>(surface->w), renderer.maxTextureWidth);
    const auto height = std::min(static_cast<std::uint32_t>(surface->h), renderer.maxTextureHeight);
    const int newWidth = static_cast<int>(width);
    const int newHeight = static_cast<int>(height);
    if (newWidth == surface->w && newHeight == surface->h)
        return true;
    const SDL_PixelFormat& format = *surface->format;
    OwnedSurface smaller(SDL_CreateRGBSurface(0, newWidth, newHeight, format.BitsPerPixel,
                                              format.Rmask, format.Gmask, format.Bmask,
                                              format.Amask));
    if (!smaller)
        return false;
    resample(*smaller);
    surface = std::move(smaller);
    return true;
}

} // namespace zrk
