#pragma once

#include "zrk/gl.h"

#include <cstdint>
#include <optional>
#include <span>

namespace zrk {

/// The words of a shaders pool file. "blend" stands twice: an environment mode and a layer.
enum class Keyword : std::uint8_t {
    texture,
    nearest,
    linear,
    nearestMipmapNearest,
    nearestMipmapLinear,
    linearMipmapNearest,
    linearMipmapLinear,
    clamp,
    clampToEdge,
    repeat,
    replace,
    modulate,
    decal,
    environmentBlend,
    blend,
    zero,
    one,
    dstColor,
    oneMinusDstColor,
    srcAlpha,
    oneMinusSrcAlpha,
    dstAlpha,
    oneMinusDstAlpha,
    srcAlphaSaturate,
    srcColor,
    oneMinusSrcColor,
    boolWord, ///< This and the next two are reserved: no layer has them.
    trueWord,
    falseWord,
    multitexture,
    color,
};

const char* wordOf(Keyword keyword);

/// Upper and lower case are different words.
bool isWord(const char* text, Keyword keyword);

/// A word that a position in a line accepts, and what OpenGL calls it there.
struct WordValue {
    Keyword keyword;
    GLenum value;
};

/// The value of `text` where `accepted` are the words; none for any other text.
std::optional<GLenum> valueFor(std::span<const WordValue> accepted, const char* text);

/// The word for `value` where `accepted` are the words; null for a value without one.
const char* wordFor(std::span<const WordValue> accepted, GLenum value);

// What each position accepts; reading and writing share the lists.

inline constexpr WordValue minFilterWords[] = {
    {Keyword::nearest, GL_NEAREST},
    {Keyword::linear, GL_LINEAR},
    {Keyword::nearestMipmapNearest, GL_NEAREST_MIPMAP_NEAREST},
    {Keyword::nearestMipmapLinear, GL_NEAREST_MIPMAP_LINEAR},
    {Keyword::linearMipmapNearest, GL_LINEAR_MIPMAP_NEAREST},
    {Keyword::linearMipmapLinear, GL_LINEAR_MIPMAP_LINEAR},
};

inline constexpr WordValue magFilterWords[] = {
    {Keyword::nearest, GL_NEAREST},
    {Keyword::linear, GL_LINEAR},
};

inline constexpr WordValue wrapWords[] = {
    {Keyword::clamp, GL_CLAMP},
    {Keyword::clampToEdge, GL_CLAMP_TO_EDGE},
    {Keyword::repeat, GL_REPEAT},
};

inline constexpr WordValue envModeWords[] = {
    {Keyword::replace, GL_REPLACE},
    {Keyword::modulate, GL_MODULATE},
    {Keyword::decal, GL_DECAL},
    {Keyword::environmentBlend, GL_BLEND},
};

inline constexpr WordValue srcFactorWords[] = {
    {Keyword::zero, GL_ZERO},
    {Keyword::one, GL_ONE},
    {Keyword::dstColor, GL_DST_COLOR},
    {Keyword::oneMinusDstColor, GL_ONE_MINUS_DST_COLOR},
    {Keyword::srcAlpha, GL_SRC_ALPHA},
    {Keyword::oneMinusSrcAlpha, GL_ONE_MINUS_SRC_ALPHA},
    {Keyword::dstAlpha, GL_DST_ALPHA},
    {Keyword::oneMinusDstAlpha, GL_ONE_MINUS_DST_ALPHA},
    {Keyword::srcAlphaSaturate, GL_SRC_ALPHA_SATURATE},
};

inline constexpr WordValue dstFactorWords[] = {
    {Keyword::zero, GL_ZERO},          {Keyword::one, GL_ONE},
    {Keyword::srcColor, GL_SRC_COLOR}, {Keyword::oneMinusSrcColor, GL_ONE_MINUS_SRC_COLOR},
    {Keyword::srcAlpha, GL_SRC_ALPHA}, {Keyword::oneMinusSrcAlpha, GL_ONE_MINUS_SRC_ALPHA},
    {Keyword::dstAlpha, GL_DST_ALPHA}, {Keyword::oneMinusDstAlpha, GL_ONE_MINUS_DST_ALPHA},
};

} // namespace zrk
