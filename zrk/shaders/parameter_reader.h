#pragma once

#include "zrk/line_tokens.h"
#include "zrk/shaders/keywords.h"
#include "zrk/shaders/shader_result.h"

#include <cstdint>
#include <span>

namespace zrk {

/// Reads the parameters of a layer's line in their order. The first failure sticks, and what
/// follows it is not read: a missing parameter is `wrongParameterCount`, a word out of its place
/// `unknownParameter`. Text that is no number reads as 0.
class ParameterReader {
public:
    explicit ParameterReader(LineTokens& layerLine) : line(layerLine) {}

    /// What no 32 bits hold becomes the nearest that they do.
    ParameterReader& integer(std::int32_t& value);

    ParameterReader& word(std::span<const WordValue> accepted, GLenum& value);

    /// Four numbers, with or without angle brackets. OpenGL gets finite ones: what a float cannot
    /// hold becomes the largest that it can, and "nan" is no number.
    ParameterReader& numbers(std::span<GLfloat, 4> values);

    [[nodiscard]] ShaderResult result() const { return outcome; }

private:
    /// The next parameter; null after a failure, and when there is none, which is one.
    const char* parameter(const char* delimiters);

    LineTokens& line;
    ShaderResult outcome = ShaderResult::ok;
};

} // namespace zrk
