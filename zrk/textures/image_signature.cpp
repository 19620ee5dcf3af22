#include "zrk/textures/image_signature.h"

#include "zrk/textures/gif_check.h"
#include "zrk/textures/owned_surface.h"
#include "zrk/textures/xpm_check.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace zrk {

namespace {

using namespace std::string_view_literals;

// A chunk of a PNG or LBM file: a big-endian length and four letters, in an order of the format's.
struct Chunk {
    std::uint32_t length;
    std::array<char, 4> letters;

    bool is(std::string_view name) const { return std::ranges::equal(letters, name); }
};

constexpr std::uint32_t mostChunkBytes = 0x7ffffff0; // a signed 32-bit offset with room to spare

std::optional<Chunk> readChunk(std::FILE* file, std::size_t lengthAt, std::size_t lettersAt)
{
    unsigned char bytes[8];
    if (std::fread(bytes, 1, sizeof bytes, file) != sizeof bytes)
        return std::nullopt;
    Chunk chunk{0, {}};
    for (std::size_t i = 0; i < 4; ++i)
        chunk.length = chunk.length << 8 | bytes[lengthAt + i];
    std::memcpy(chunk.letters.data(), bytes + lettersAt, 4);
    return chunk.length <= mostChunkBytes ? std::optional(chunk) : std::nullopt;
}

bool skip(std::FILE* file, std::uint32_t bytes)
{
    return std::fseek(file, static_cast<long>(bytes), SEEK_CUR) == 0;
}

// The decoder ignores the end of the file: in a file cut off before its image data (IDAT) it reads
// the same bytes for ever.
bool isSoundPng(std::FILE* file)
{
    constexpr std::uint32_t checksumBytes = 4;
    if (!skip(file, 8))
        return false;
    while (const std::optional<Chunk> chunk = readChunk(file, 0, 4)) {
        if (chunk->is("IDAT"sv))
            return true;
        if (!skip(file, chunk->length + checksumBytes))
            return false;
    }
    return false;
}

// The decoder takes a chunk's length for granted: a palette (CMAP) of more than 256 colours writes
// past its array, a header (BMHD) of less than 20 bytes is skipped backwards, for ever.
bool isSoundLbm(std::FILE* file)
{
    if (!skip(file, 12))
        return false;
    while (const std::optional<Chunk> chunk = readChunk(file, 4, 0)) {
        if (chunk->is("BODY"sv))
            return true;
        if ((chunk->is("CMAP"sv) && chunk->length > 3 * 256) ||
            (chunk->is("BMHD"sv) && chunk->length < 20) ||
            !skip(file, chunk->length + (chunk->length & 1)))
            return false;
    }
    return false;
}

// The decoder copies rows of the width that the header's corners give out of lines of the length
// that it gives as well, and asks neither whether the width is positive nor whether the line is
// long enough.
bool isSoundPcx(std::FILE* file)
{
    unsigned char header[128];
    if (std::fread(header, 1, sizeof header, file) != sizeof header)
        return false;
    const auto word = [&](int offset) { return header[offset] | header[offset + 1] << 8; };
    const int width = word(8) - word(4) + 1; // the last and the first column
    const int height = word(10) - word(6) + 1;
    const int bitsPerPixel = header[3]; // in each plane
    return fitsSurface(width, height) && 8 * word(66) >= width * bitsPerPixel;
}

/// The next number of a PNM header, at most 655359; white space and comments before it are skipped.
/// 0 for anything else.
int readPnmNumber(std::FILE* file)
{
    int character = std::getc(file);
    while (character > 0 && std::strchr("# \t\n\v\f\r", character) != nullptr) {
        if (character == '#')
            while (character != '\n' && character != '\r' && character != EOF)
                character = std::getc(file);
        character = std::getc(file);
    }
    int number = 0;
    for (; character >= '0' && character <= '9' && number < 65536; character = std::getc(file))
        number = 10 * number + (character - '0');
    return number;
}

// The decoder reads a missing number of a text format (P1 to P3) as 0, and would go on for minutes
// behind the end of a file of ten bytes.
bool isSoundPnm(std::FILE* file)
{
    std::getc(file);
    const int kind = std::getc(file);
    const int width = readPnmNumber(file);
    const int height = readPnmNumber(file);
    if (!fitsSurface(width, height))
        return false;
    const long here = std::ftell(file);
    const long numbers = kind > '3' ? 0 : long{width} * height * (kind == '3' ? 3 : 1);
    return std::fseek(file, 0, SEEK_END) == 0 && std::ftell(file) - here >= numbers;
}

struct Signature {
    std::string_view bytes; // '?' stands for any byte
    bool (*isSound)(std::FILE* file) = nullptr;
};

constexpr Signature signatures[] = {
    {"\x89PNG\r\n\x1a\n"sv, isSoundPng},
    {"GIF87a"sv, isSoundGif},
    {"GIF89a"sv, isSoundGif},
    {"/* XPM */"sv, isSoundXpm},
    {"FORM????ILBM"sv, isSoundLbm},
    {"FORM????PBM "sv, isSoundLbm},
    {"\xff\xd8\xff"sv}, // JPEG
    {"BM"sv},
    {"P1"sv, isSoundPnm},
    {"P2"sv, isSoundPnm},
    {"P3"sv, isSoundPnm},
    {"P4"sv, isSoundPnm},
    {"P5"sv, isSoundPnm},
    {"P6"sv, isSoundPnm},
    {"II*\0"sv}, // TIFF
    {"MM\0*"sv},
    {"\x0a\x05\x01"sv, isSoundPcx},
    {"RIFF????WEBP"sv},
    {"\0\0\1\0"sv}, // ICO
    {"\0\0\2\0"sv}, // CUR
};

bool startsWith(std::string_view start, std::string_view signature)
{
    constexpr auto matches = [](char byte, char expected) {
        return byte == expected || expected == '?';
    };
    return start.size() >= signature.size() &&
           std::ranges::equal(start.substr(0, signature.size()), signature, matches);
}

} // namespace

bool isDecodable(std::FILE* file)
{
    char bytes[16];
    const std::string_view start(bytes, std::fread(bytes, 1, sizeof bytes, file));
    if (std::fseek(file, 0, SEEK_SET) != 0)
        return false;
    for (const Signature& signature : signatures)
        if (startsWith(start, signature.bytes))
            return signature.isSound == nullptr || signature.isSound(file);
    return false;
}

} // namespace zrk
