#include "zrk/textures/gif_check.h"

#include "zrk/textures/owned_surface.h"

#include <cstdint>
#include <optional>
#include <span>

namespace zrk {

namespace {

bool readBytes(std::FILE* file, std::span<unsigned char> bytes)
{
    return std::fread(bytes.data(), 1, bytes.size(), file) == bytes.size();
}

bool skipBytes(std::FILE* file, int count)
{
    while (count > 0 && std::getc(file) != EOF)
        --count;
    return count == 0;
}

/// A color table of 2^(n + 1) entries, if bit 7 of `flags` announces one; n is in bits 0 to 2.
bool skipColorTable(std::FILE* file, unsigned char flags)
{
    return (flags & 0x80) == 0 || skipBytes(file, 3 << ((flags & 7) + 1));
}

/// One sub-block: a length of one byte, and so many bytes. Returns the length, or nothing where the
/// file ends.
std::optional<int> skipSubBlock(std::FILE* file)
{
    const int length = std::getc(file);
    return length != EOF && skipBytes(file, length) ? std::optional(length) : std::nullopt;
}

/// Sub-blocks up to an empty one.
bool skipSubBlocks(std::FILE* file)
{
    std::optional<int> length;
    do
        length = skipSubBlock(file);
    while (length.value_or(0) != 0);
    return length.has_value();
}

/// LZW codes, least significant bit first, across the limits of sub-blocks.
class CodeReader {
public:
    explicit CodeReader(std::FILE* gifFile) : file(gifFile) {}

    /// The next code of `width` bits; nothing after the last sub-block or where the file ends.
    std::optional<int> next(int width)
    {
        for (; bitCount < width; bitCount += 8) {
            const int byte = nextByte();
            if (byte == EOF)
                return std::nullopt;
            bits |= static_cast<std::uint32_t>(byte) << bitCount;
        }
        const std::uint32_t code = bits & ((1u << width) - 1);
        bits >>= width;
        bitCount -= width;
        return static_cast<int>(code);
    }

    /// Skips what is left of the data. Returns false if the file ends within it.
    bool finish() { return ended || (skipBytes(file, blockLeft) && skipSubBlocks(file)); }

private:
    int nextByte()
    {
        if (blockLeft == 0) {
            blockLeft = ended ? 0 : std::getc(file);
            ended = ended || blockLeft == 0;
        }
        if (blockLeft <= 0)
            return EOF;
        --blockLeft;
        return std::getc(file);
    }

    std::FILE* file;
    std::uint32_t bits = 0; // read, and not part of a code yet
    int bitCount = 0;
    int blockLeft = 0;  // bytes of the sub-block
    bool ended = false; // the empty sub-block has been read
};

// Codes below `clear` are colours; `clear` empties the table, the next one ends the data. Each code
// but the first after a clear defines one more, which may be used at once. Codes get wider, to 12
// bits at most, whenever the next one to be defined does not fit.
bool hasSoundCodes(std::FILE* file)
{
    constexpr int mostWidth = 12;
    const int colorBits = std::getc(file);
    if (colorBits < 1 || colorBits > 8)
        return false;
    const int clear = 1 << colorBits;
    const int end = clear + 1;
    int defined = end; // the greatest code that may be read
    int width = colorBits + 1;
    bool first = true;
    CodeReader codes(file);
    for (auto code = codes.next(width); code && (first || *code != end); code = codes.next(width)) {
        if (*code == clear) {
            defined = end;
            width = colorBits + 1;
            first = true;
        } else if (first) {
            if (*code > clear)
                return false;
            first = false;
            defined = end + 1;
        } else {
            if (*code > defined)
                return false;
            if (defined < 1 << mostWidth)
                ++defined;
            if (defined >= 1 << width && width < mostWidth)
                ++width;
        }
    }
    return codes.finish();
}

/// An image's descriptor, its colours and its data.
bool isSoundImage(std::FILE* file)
{
    unsigned char descriptor[9]; // left, top, width and height, low byte first; flags
    if (!readBytes(file, descriptor))
        return false;
    const int width = descriptor[4] | descriptor[5] << 8;
    const int height = descriptor[6] | descriptor[7] << 8;
    return fitsSurface(width, height) && skipColorTable(file, descriptor[8]) && hasSoundCodes(file);
}

/// A label and sub-blocks. For a graphic control the decoder skips one sub-block first, even if it
/// is empty.
bool skipExtension(std::FILE* file)
{
    constexpr int graphicControl = 0xf9;
    if (std::getc(file) == graphicControl && !skipSubBlock(file))
        return false;
    return skipSubBlocks(file);
}

} // namespace

bool isSoundGif(std::FILE* file)
{
    unsigned char header[13]; // signature, width, height; flags, background, aspect ratio
    if (!readBytes(file, header) || !skipColorTable(file, header[10]))
        return false;
    for (int kind = std::getc(file); kind != EOF && kind != ';'; kind = std::getc(file)) {
        if (kind == ',')
            return isSoundImage(file);
        if (kind == '!' && !skipExtension(file))
            return false;
    }
    return false;
}

} // namespace zrk
