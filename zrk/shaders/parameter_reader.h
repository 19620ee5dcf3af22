#pragma once

#include "zrk/line_tokens.h"
#include "zrk/shaders/keywords.h"
#include "zrk/shaders/shader_result.h"

#include <cstdint>
#include <span>

namespace zrk {

/// Reads the parameters of a layer's line in order. After the first failure nothing more is read,
/// and `result` is that failure: `wrongParameterCount` for a missing parameter, `unknownParameter`
/// for a word that the parameter does not accept. Text that is not a number reads as 0.
class ParameterReader {
public:
    explicit ParameterReader(LineTokens& layerLine) : line(layerLine) {}

    /// A decimal integer, clamped to 32 bits.
    ParameterReader& integer(std::int32_t& value);

    ParameterReader& word(std::span<const WordValue> accepted, GLenum& value);

    /// Four numbers, with or without angle brackets. Always finite: a number outside the range of
    /// `float`, infinity included, is clamped to it, and NaN reads as 0.
    ParameterReader& numbers(std::span<GLfloat, 4> values);

    [[nodiscard]] ShaderResult result() const { return outcome; }

private:
    /// The next token. Null after a failure, and at the end of the line, which is a failure.
    const char* parameter(const char* delimiters);

    LineTokens& line;
    ShaderResult outcome = ShaderResult::ok;
};

} // namespace zrk
