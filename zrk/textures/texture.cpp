#include "zrk/textures/texture.h"

#include "zrk/gl.h"
#include "zrk/renderer.h"
#include "zrk/textures/image_load.h"
#include "zrk/textures/resample.h"
#include "zrk/textures/rgba32_format.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <ostream>
#include <utility>

namespace zrk {

namespace {

struct UploadFormat {
    int bitsPerPixel;
    GLenum format;
    GLenum maskFormat;
    GLenum type;
};

// The internal format is the same enumerant as the pixel format, not a number of components.
constexpr UploadFormat uploadFormats[] = {
    {8, GL_LUMINANCE, GL_ALPHA, GL_UNSIGNED_BYTE},
    {16, GL_RGB, GL_RGB, GL_UNSIGNED_SHORT_5_6_5},
    {24, GL_RGB, GL_RGB, GL_UNSIGNED_BYTE},
    {32, GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE},
};

// No pixel-store state is needed: SDL pads rows to multiples of four bytes, which is OpenGL's
// initial GL_UNPACK_ALIGNMENT. A depth that is not in the table leaves the texture without an
// image.
void sendImage(const SDL_Surface& surface, bool mipmap, bool mask)
{
    const auto* found =
        std::ranges::find(uploadFormats, surface.format->BitsPerPixel, &UploadFormat::bitsPerPixel);
    if (found == std::end(uploadFormats))
        return;
    const GLenum format = mask ? found->maskFormat : found->format;
    const auto internalFormat = static_cast<GLint>(format);
    if (mipmap)
        gluBuild2DMipmaps(GL_TEXTURE_2D, internalFormat, surface.w, surface.h, format, found->type,
                          surface.pixels);
    else
        glTexImage2D(GL_TEXTURE_2D, 0, internalFormat, surface.w, surface.h, 0, format, found->type,
                     surface.pixels);
}

} // namespace

Texture::~Texture()
{
    if (surface)
        glDeleteTextures(1, &glName);
}

std::int32_t Texture::load(const char* name, std::ostream* log)
{
    OwnedSurface image = loadImage(name);
    if (!image) {
        if (log != nullptr)
            *log << "Error: cannot load image '" << (name != nullptr ? name : "") << "'\n"
                 << std::flush;
        return -1;
    }
    freeSurface();
    surface = image->format->BitsPerPixel == 8 ? std::move(image) : toRgba32(*image);
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

void Texture::resample(SDL_Surface& destination) const
{
    resampleNearest(*surface, destination);
}

std::uint32_t Texture::upload()
{
    if (surface && glName == 0) {
        glGenTextures(1, &glName);
        glBindTexture(GL_TEXTURE_2D, glName);
        sendImage(*surface, mipmap, mask);
    }
    // Also reached without an upload: an error left by the window's set-up ends the program here.
    if (const GLenum error = glGetError(); error != GL_NO_ERROR) {
        renderer.reportGlError(error);
        std::exit(-1); // not abort: the long-lived objects are destroyed in order
    }
    return glName;
}

void Texture::swap(Texture& other) noexcept
{
    std::swap(glName, other.glName);
    surface.swap(other.surface);
    fileName.swap(other.fileName);
    std::swap(mipmap, other.mipmap);
    std::swap(mask, other.mask);
    std::swap(grey, other.grey);
}

void Texture::freeSurface()
{
    surface.reset();
}

} // namespace zrk
