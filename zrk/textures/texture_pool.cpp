#include "zrk/textures/texture_pool.h"

#include "zrk/allocation.h"
#include "zrk/line_tokens.h"
#include "zrk/text_file.h"
#include "zrk/textures/rgba32_format.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <ostream>
#include <string_view>
#include <utility>

namespace zrk {

namespace {

using enum TexturePool::Code;

// Indexed by code. The loader never produces 4, a write error. Each text is followed by a name and
// closed by an apostrophe.
constexpr std::array messages = {
    "Successfully loaded `",   "Error opening file `",    "Error closing file `",
    "Error reading in file `", "Error writing in file `", "Unknown texture parameter `",
};

struct Option {
    std::string_view word;
    bool Texture::*flag;
};

constexpr Option options[] = {
    {"mipmap", &Texture::mipmap},
    {"mask", &Texture::mask},
    {"grey", &Texture::grey},
    {"gray", &Texture::grey},
};

/// Reads the pool file line by line, and each line token by token.
class PoolReader {
public:
    explicit PoolReader(std::FILE* poolFile) : file(poolFile) {}

    bool nextLine()
    {
        tokens = LineTokens(line.data());
        return readLine(file, line);
    }

    /// Returns null at the end of the line.
    const char* nextToken()
    {
        token = tokens.next(", \n");
        return token;
    }

    /// The last result of `nextToken`; valid until the next line is read.
    const char* currentToken() const { return token; }

    /// The number at the start of the line, clamped to 0 ... 2^32 - 1.
    std::uint32_t lineCount() const
    {
        constexpr long long most = std::numeric_limits<std::uint32_t>::max();
        return static_cast<std::uint32_t>(
            std::clamp(std::strtoll(line.data(), nullptr, 10), 0LL, most));
    }

    bool failed() const { return std::ferror(file) != 0; }

private:
    std::FILE* file;
    std::array<char, 1024> line{}; // including the line feed and the terminator
    LineTokens tokens{line.data()};
    const char* token = nullptr;
};

bool readOptions(PoolReader& reader, Texture& texture)
{
    while (const char* token = reader.nextToken()) {
        const auto* option = std::ranges::find(options, std::string_view(token), &Option::word);
        if (option == std::end(options))
            return false;
        texture.*option->flag = true;
    }
    return true;
}

std::int32_t readTexture(PoolReader& reader, Texture& texture, std::ostream* log)
{
    if (texture.load(reader.nextToken(), log) != 0)
        return cannotLoadImage;
    if (!readOptions(reader, texture))
        return unknownOption;
    if (texture.surface->format->BitsPerPixel == 8 && !texture.grey) {
        OwnedSurface converted = toRgba32(*texture.surface);
        if (!converted)
            return cannotConvert;
        texture.surface = std::move(converted);
    }
    return loaded;
}

std::int32_t readTextures(PoolReader& reader, TexturePool& pool, std::ostream* log)
{
    if (!reader.nextLine())
        return noFirstLine;
    const std::uint32_t announced = reader.lineCount();
    if (announced == 0)
        return noTextures;
    // Memory follows the lines that are read: the announced count may lie.
    constexpr std::uint32_t firstTextures = 1024;
    pool.resize(std::min(announced, firstTextures));
    for (std::uint32_t i = 0; i < announced; ++i) {
        if (i == pool.count)
            pool.grow(announced);
        if (!reader.nextLine())
            return reader.failed() ? readError : tooFewLines;
        if (const std::int32_t result = readTexture(reader, pool.textures[i], log);
            result != loaded)
            return result;
    }
    return loaded;
}

} // namespace

std::int32_t TexturePool::load(const char* name, std::ostream* log)
{
    OwnedFile file = openTextFile(name);
    if (!file) {
        report(cannotOpenFile, name, log);
        return cannotOpenFile;
    }
    PoolReader reader(file.get());
    std::int32_t result = readTextures(reader, *this, log);
    // A failed close replaces every result but these two.
    if (!closeFile(std::move(file)) && result != unknownOption && result != cannotConvert)
        result = cannotCloseFile;
    if (result == loaded)
        fileName = name;
    if (result != cannotLoadImage && result != cannotConvert) // the image loader wrote its own line
        report(result, result == unknownOption ? reader.currentToken() : name, log);
    return result;
}

void TexturePool::uploadAll()
{
    for (std::uint32_t i = 0; i < count; ++i)
        textures[i].upload();
}

void TexturePool::resize(std::uint32_t newCount)
{
    count = 0;
    textures.reset();
    if (newCount != 0)
        textures = newArray<Texture>(newCount);
    count = newCount;
}

void TexturePool::grow(std::uint32_t mostTextures)
{
    const std::uint32_t newCount = std::min(mostTextures, 2 * count);
    std::unique_ptr<Texture[]> longer = newArray<Texture>(newCount);
    for (std::uint32_t i = 0; i < count; ++i)
        longer[i].swap(textures[i]);
    textures = std::move(longer);
    count = newCount;
}

void TexturePool::report(std::int32_t code, const char* name, std::ostream* log)
{
    if (log == nullptr)
        return;
    if (code < 0)
        *log << "Undefined warning";
    else if (static_cast<std::size_t>(code) < messages.size())
        *log << messages[static_cast<std::size_t>(code)] << (name != nullptr ? name : "") << '\'';
    else
        *log << "Undefined error";
    *log << '\n' << std::flush;
}

} // namespace zrk
