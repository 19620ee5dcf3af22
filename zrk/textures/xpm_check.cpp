#include "zrk/textures/xpm_check.h"

#include "zrk/textures/owned_surface.h"

#include <array>
#include <cstddef>
#include <span>

namespace zrk {

namespace {

bool skipToQuote(std::FILE* file)
{
    int character = std::getc(file);
    while (character != '"' && character != EOF)
        character = std::getc(file);
    return character == '"';
}

/// Reads the next quoted text. Returns its length, of which `text` takes what fits, or -1 where the
/// file ends.
long readQuoted(std::FILE* file, std::span<char> text)
{
    if (!skipToQuote(file))
        return -1;
    long length = 0;
    int character = std::getc(file);
    for (; character != '"' && character != EOF; character = std::getc(file), ++length)
        if (static_cast<std::size_t>(length) + 1 < text.size())
            text[static_cast<std::size_t>(length)] = static_cast<char>(character);
    return character == '"' ? length : -1;
}

struct Header {
    int width, height, colors, charactersPerPixel;
};

/// False for a header without its numbers, and for numbers that no file of sense has.
bool readHeader(std::FILE* file, Header& header)
{
    char text[256] = "";
    const long length = readQuoted(file, text);
    return length >= 0 && length < static_cast<long>(sizeof text) &&
           std::sscanf(text, "%d %d %d %d", &header.width, &header.height, &header.colors,
                       &header.charactersPerPixel) == 4 &&
           fitsSurface(header.width, header.height) && header.colors >= 1 &&
           header.colors <= 1 << 24 && header.charactersPerPixel >= 1 &&
           header.charactersPerPixel <= 8;
}

/// A row is read as a block: its characters, the quote, and two bytes more. A pixel of one
/// character that is no colour's makes the decoder follow a null pointer.
bool isSoundRow(std::FILE* file, const Header& header, const std::array<bool, 256>& known)
{
    if (!skipToQuote(file))
        return false;
    const int characters = header.width * header.charactersPerPixel;
    for (int i = 0; i < characters + 3; ++i) {
        const int character = std::getc(file);
        if (character == EOF)
            return false;
        if (header.charactersPerPixel == 1 && i < characters &&
            !known[static_cast<std::size_t>(character)])
            return false;
    }
    return true;
}

} // namespace

bool isSoundXpm(std::FILE* file)
{
    Header header;
    if (!readHeader(file, header))
        return false;
    // A colour: its characters, a space, and its definition.
    std::array<bool, 256> known{};
    for (int color = 0; color < header.colors; ++color) {
        char text[2] = "";
        if (readQuoted(file, text) <= header.charactersPerPixel)
            return false;
        known[static_cast<unsigned char>(text[0])] = true;
    }
    for (int row = 0; row < header.height; ++row)
        if (!isSoundRow(file, header, known))
            return false;
    return true;
}

} // namespace zrk
