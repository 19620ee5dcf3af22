#include "zrk/shaders/parameter_reader.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>

namespace zrk {

namespace {

constexpr const char* separators = ", \n";
constexpr const char* numberSeparators = "<>, \n";

template <typename Number, typename Wide>
Number clamped(Wide value)
{
    return static_cast<Number>(std::clamp<Wide>(value, std::numeric_limits<Number>::lowest(),
                                                std::numeric_limits<Number>::max()));
}

} // namespace

ParameterReader& ParameterReader::integer(std::int32_t& value)
{
    if (const char* text = parameter(separators))
        value = clamped<std::int32_t>(std::strtoll(text, nullptr, 10));
    return *this;
}

ParameterReader& ParameterReader::word(std::span<const WordValue> accepted, GLenum& value)
{
    const char* text = parameter(separators);
    if (text == nullptr)
        return *this;
    if (const std::optional<GLenum> known = valueFor(accepted, text))
        value = *known;
    else
        outcome = ShaderResult::unknownParameter;
    return *this;
}

ParameterReader& ParameterReader::numbers(std::span<GLfloat, 4> values)
{
    for (GLfloat& value : values) {
        const char* text = parameter(numberSeparators);
        if (text == nullptr)
            break;
        // The point is a decimal point because nothing in the program calls setlocale.
        const double number = std::strtod(text, nullptr);
        value = std::isnan(number) ? 0.0f : clamped<GLfloat>(number);
    }
    return *this;
}

const char* ParameterReader::parameter(const char* delimiters)
{
    if (outcome != ShaderResult::ok)
        return nullptr;
    const char* text = line.next(delimiters);
    if (text == nullptr)
        outcome = ShaderResult::wrongParameterCount;
    return text;
}

} // namespace zrk
