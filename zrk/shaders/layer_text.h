#pragma once

#include "zrk/shaders/keywords.h"

#include <cstdint>
#include <span>

namespace zrk {

class String;

/// Decimals of a colour: in a layer's printed line, and in the texture kinds' `toText`.
inline constexpr int printedDecimals = 6;
inline constexpr int textDecimals = 4;

/// Writes a layer's line, the way back of `ParameterReader`. Every parameter ends with ", " but
/// the last one, and a value without a word is left out, separator and all.
class LayerText {
public:
    /// Replaces `text`, which is borrowed, by the keyword `layer` and its colon. Numbers get
    /// `decimalCount` digits after the point.
    LayerText(String& text, Keyword layer, int decimalCount = printedDecimals);

    LayerText& integer(std::int32_t value);
    LayerText& word(std::span<const WordValue> accepted, GLenum value);
    LayerText& numbers(std::span<const GLfloat, 4> values);

    LayerText& lastWord(std::span<const WordValue> accepted, GLenum value);
    LayerText& lastNumbers(std::span<const GLfloat, 4> values);

private:
    LayerText& separator();

    String& out;
    int decimals;
};

} // namespace zrk
