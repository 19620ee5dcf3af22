#include "zrk/textures/texture.h"

#include "zrk/gl.h"
#include "zrk/renderer.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace zrk {

namespace {

struct UploadFormat {
    int bitsPerPixel;
    GLenum format;
    GLenum maskFormat;
    GLenum type;
};

constexpr UploadFormat uploadFormats[] = {
    {8, GL_LUMINANCE, GL_ALPHA, GL_UNSIGNED_BYTE},
    {16, GL_RGB, GL_RGB, GL_UNSIGNED_SHORT_5_6_5},
    {24, GL_RGB, GL_RGB, GL_UNSIGNED_BYTE},
    {32, GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE},
};

// SDL starts every row at a multiple of four bytes, and so does OpenGL's initial unpack state.
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

std::uint32_t Texture::upload()
{
    if (surface && glName == 0) {
        glGenTextures(1, &glName);
        glBindTexture(GL_TEXTURE_2D, glName);
        sendImage(*surface, mipmap, mask);
    }
    if (const GLenum error = glGetError(); error != GL_NO_ERROR) {
        renderer.reportGlError(error);
        std::exit(-1); // as any end of the program: the long-lived objects are destroyed in order
    }
    return glName;
}

void Texture::freeSurface()
{
    surface.reset();
}

} // namespace zrk
