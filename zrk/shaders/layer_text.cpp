#include "zrk/shaders/layer_text.h"

#include "zrk/owned_string.h"

#include <cstdio>

namespace zrk {

LayerText::LayerText(String& text, Keyword layer, Decimals colorDecimals)
    : out(text),
      decimals(colorDecimals)
{
    out = wordOf(layer);
    out += ": ";
}

LayerText& LayerText::integer(std::int32_t value)
{
    char digits[16];
    std::snprintf(digits, sizeof digits, "%d", value);
    out += digits;
    return separator();
}

LayerText& LayerText::word(std::span<const WordValue> accepted, GLenum value)
{
    if (wordFor(accepted, value) == nullptr)
        return *this; // and no separator
    return lastWord(accepted, value).separator();
}

LayerText& LayerText::numbers(std::span<const GLfloat, 4> values)
{
    return lastNumbers(values).separator();
}

LayerText& LayerText::lastWord(std::span<const WordValue> accepted, GLenum value)
{
    if (const char* text = wordFor(accepted, value))
        out += text;
    return *this;
}

LayerText& LayerText::lastNumbers(std::span<const GLfloat, 4> values)
{
    char text[256]; // 4 times at most 39 digits, sign, point and decimals
    std::snprintf(text, sizeof text,
                  decimals == Decimals::four ? "<%.4f, %.4f, %.4f, %.4f>" : "<%f, %f, %f, %f>",
                  double{values[0]}, double{values[1]}, double{values[2]}, double{values[3]});
    out += text;
    return *this;
}

LayerText& LayerText::separator()
{
    out += ", ";
    return *this;
}

} // namespace zrk
