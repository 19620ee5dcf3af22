#include "tools/caustics/png_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <png.h>
#include <stdexcept>

namespace caustics {
namespace {

constexpr int mostCompression = 9;

png_byte byteOf(float brightness)
{
    return static_cast<png_byte>(std::lround(255.0f * std::min(brightness, 1.0f)));
}

std::array<png_color, 256> palette()
{
    // The texture multiplies the surface's colour, which has little green: much of it here lets
    // bright filaments tend towards white.
    std::array<png_color, 256> colours{};
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const float tone = static_cast<float>(i) / 255.0f;
        colours[i] = {.red = byteOf(0.85f * tone),
                      .green = byteOf(2.6f * std::pow(tone, 1.2f)),
                      .blue = byteOf(1.1f * tone)};
    }
    return colours;
}

void append(png_structp png, png_bytep bytes, size_t count)
{
    auto* const file = static_cast<std::string*>(png_get_io_ptr(png));
    file->append(reinterpret_cast<const char*>(bytes), count);
}

void flushNothing(png_structp) {}

/// libpng reports an error by longjmp to this function, which skips destructors: no local here may
/// have one.
bool write(png_structp png, png_infop info, const GreyPicture& picture,
           const std::array<png_color, 256>& colours)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    const auto side = static_cast<png_uint_32>(picture.side);
    png_set_IHDR(png, info, side, side, 8, PNG_COLOR_TYPE_PALETTE, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_PLTE(png, info, colours.data(), static_cast<int>(colours.size()));
    png_set_compression_level(png, mostCompression);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_ALL_FILTERS); // the indices are smooth levels
    png_write_info(png, info);
    for (png_uint_32 row = 0; row < side; ++row)
        png_write_row(png, &picture.levels[static_cast<std::size_t>(row) * side]);
    png_write_end(png, info);
    return true;
}

} // namespace

std::string encodePng(const GreyPicture& picture)
{
    std::string file;
    bool written = false;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
    if (info != nullptr) {
        png_set_write_fn(png, &file, append, flushNothing);
        written = write(png, info, picture, palette());
    }
    png_destroy_write_struct(&png, &info);
    if (!written)
        throw std::runtime_error("libpng cannot encode an image");
    return file;
}

} // namespace caustics
