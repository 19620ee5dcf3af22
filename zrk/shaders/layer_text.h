#pragma once

#include "zrk/shaders/keywords.h"

#include <cstdint>
#include <span>

namespace zrk {

class String;

/// Decimals of a colour: six in `write` and most `toText`, four in `toText` of the texture layers.
enum class Decimals { four, six };

/// Builds the text of a layer's line, the inverse of `ParameterReader`. Every parameter but the
/// last is followed by ", ". A value without a word is left out together with its separator.
class LayerText {
public:
    /// Replaces `text`, which is borrowed, by the keyword `layer` and a colon.
    LayerText(String& text, Keyword layer, Decimals colorDecimals = Decimals::six);

    LayerText& integer(std::int32_t value);
    LayerText& word(std::span<const WordValue> accepted, GLenum value);
    LayerText& numbers(std::span<const GLfloat, 4> values);

    LayerText& lastWord(std::span<const WordValue> accepted, GLenum value);
    LayerText& lastNumbers(std::span<const GLfloat, 4> values);

private:
    LayerText& separator();

    String& out;
    Decimals decimals;
};

} // namespace zrk
