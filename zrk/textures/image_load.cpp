#include "zrk/textures/image_load.h"

#include "zrk/regular_file.h"
#include "zrk/textures/image_signature.h"

#include <SDL_image.h>

#include <cstring>

namespace zrk {

namespace {

// TGA has no signature. SDL_image goes by the letters behind the last dot, and then takes the file
// for nothing else.
bool isNamedTarga(const char* fileName)
{
    const char* const dot = std::strrchr(fileName, '.');
    return dot != nullptr && SDL_strcasecmp(dot, ".tga") == 0;
}

// A BMP comes with whatever number of bits per pixel its header says: 264 of them arrive as 8 in 33
// bytes, without the palette that 8 need. SDL can convert neither that nor more than four bytes.
bool isUsable(const SDL_Surface& image)
{
    const SDL_PixelFormat& format = *image.format;
    const bool indexed = format.palette != nullptr;
    return fitsSurface(image.w, image.h) && format.BytesPerPixel >= (indexed ? 1 : 2) &&
           format.BytesPerPixel <= (indexed ? 1 : 4);
}

} // namespace

OwnedSurface loadImage(const char* fileName)
{
    const OwnedFile file = openRegularFile(fileName);
    if (!file || !(isNamedTarga(fileName) || isDecodable(file.get())))
        return nullptr;
    OwnedSurface image(IMG_Load(fileName));
    if (image && !isUsable(*image))
        image.reset();
    return image;
}

} // namespace zrk
