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

} // namespace

OwnedSurface loadImage(const char* fileName)
{
    const OwnedFile file = openRegularFile(fileName);
    if (!file || !(isNamedTarga(fileName) || isDecodable(file.get())))
        return nullptr;
    OwnedSurface image(IMG_Load(fileName));
    if (image && !fitsSurface(image->w, image->h))
        image.reset();
    return image;
}

} // namespace zrk
