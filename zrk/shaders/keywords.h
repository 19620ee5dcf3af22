#pragma once

#include "zrk/gl.h"

#include <cstdint>
#include <optional>
#include <span>

namespace zrk {

/// The words of a shaders pool file. "blend" has two entries: the environment mode and the layer.
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
    boolWord, ///< Reserved, like the next two: no layer accepts them.
    trueWord,
    falseWord,
    multitexture,
    color,
};

/// The word as it is written in the file.
const char* wordOf(Keyword keyword);

/// Exact comparison, case included.
bool isWord(const char* text, Keyword keyword);

/// A word that a parameter accepts, and its OpenGL value.
struct WordValue {
    Keyword keyword;
    GLenum value;
};

/// The value of `text`, or none if it is not among the `accepted` words.
std::optional<GLenum> valueFor(std::span<const WordValue> accepted, const char* text);

/// The `accepted` word for `value`, or null if there is none.
const char* wordFor(std::span<const WordValue> accepted, GLenum value);

// The words of each parameter. Reading and writing share these tables.

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
