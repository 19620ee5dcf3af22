#include "zrk/shaders/keywords.h"

#include <cstddef>
#include <cstring>
#include <iterator>

namespace zrk {

namespace {

// Indexed by Keyword.
constexpr const char* words[] = {
    "texture",
    "nearest",
    "linear",
    "nearest_mipmap_nearest",
    "nearest_mipmap_linear",
    "linear_mipmap_nearest",
    "linear_mipmap_linear",
    "clamp",
    "clamp_to_edge",
    "repeat",
    "replace",
    "modulate",
    "decal",
    "blend",
    "blend",
    "zero",
    "one",
    "dst_color",
    "one_minus_dst_color",
    "src_alpha",
    "one_minus_src_alpha",
    "dst_alpha",
    "one_minus_dst_alpha",
    "src_alpha_saturate",
    "src_color",
    "one_minus_src_color",
    "bool",
    "true",
    "false",
    "multitexture",
    "color",
};
static_assert(std::size(words) == static_cast<std::size_t>(Keyword::color) + 1);

} // namespace

const char* wordOf(Keyword keyword)
{
    return words[static_cast<std::size_t>(keyword)];
}

bool isWord(const char* text, Keyword keyword)
{
    return std::strcmp(text, wordOf(keyword)) == 0;
}

// Linear searches: no list has more than nine words.

std::optional<GLenum> valueFor(std::span<const WordValue> accepted, const char* text)
{
    for (const WordValue& entry : accepted)
        if (isWord(text, entry.keyword))
            return entry.value;
    return std::nullopt;
}

const char* wordFor(std::span<const WordValue> accepted, GLenum value)
{
    for (const WordValue& entry : accepted)
        if (entry.value == value)
            return wordOf(entry.keyword);
    return nullptr;
}

} // namespace zrk
