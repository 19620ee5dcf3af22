// A layer's line, its kind first. What is read prints as a line that reads as the same.

#include "fuzz/harness.h"
#include "zrk/line_tokens.h"
#include "zrk/owned_string.h"
#include "zrk/shaders/blend_layer.h"
#include "zrk/shaders/color_layer.h"
#include "zrk/shaders/multitexture_layer.h"
#include "zrk/shaders/shader.h"
#include "zrk/shaders/texture_layer.h"

namespace {

constexpr auto parsers = {zrk::parseBlendLayer, zrk::parseTextureLayer, zrk::parseColorLayer,
                          zrk::parseMultitextureLayer};

/// The text of the layer that `line` describes; "" for a line that is none.
std::string parsed(std::size_t kind, std::string line)
{
    zrk::Shader shader;
    zrk::LineTokens tokens(line.data());
    if (parsers.begin()[kind](shader, tokens) != zrk::ShaderResult::ok)
        return "";
    zrk::String text;
    shader.layers().front()->toText(text);
    return text.cString();
}

} // namespace

void tryInput(std::span<const std::uint8_t> input)
{
    if (input.empty())
        return;
    const std::size_t kind = input.front() % parsers.size();
    const std::string text = parsed(kind, std::string(input.begin() + 1, input.end()));
    if (!text.empty() && parsed(kind, text.substr(text.find(' '))) != text)
        std::abort();
}
