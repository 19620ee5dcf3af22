#include "zrk/shaders/color_layer.h"

#include "zrk/allocation.h"
#include "zrk/owned_string.h"
#include "zrk/shaders/layer_text.h"
#include "zrk/shaders/parameter_reader.h"
#include "zrk/shaders/shader.h"
#include "zrk/shaders/texture_units.h"

#include <algorithm>

namespace zrk {

ColorLayer::ColorLayer() : rgba(newArray<GLfloat>(4)) {}

ColorLayer::ColorLayer(const ColorLayer& other) : ShaderLayer(other), rgba(newArray<GLfloat>(4))
{
    ColorLayer::assign(other);
}

void ColorLayer::apply()
{
    setColor(values());
}

void ColorLayer::reapply()
{
    apply();
}

// Meant: the current colour may be one that the shell has set since.
void ColorLayer::readBack() {}

void ColorLayer::toText(String& out) const
{
    LayerText(out, Keyword::color).lastNumbers(values());
}

void ColorLayer::write(std::FILE* out) const
{
    String text;
    toText(text);
    std::fprintf(out, "  %s", text.cString());
}

void ColorLayer::resolve(const TexturePool&) {}

void ColorLayer::assign(const ColorLayer& other)
{
    std::ranges::copy(other.values(), rgba.get());
}

ShaderResult parseColorLayer(Shader& shader, LineTokens& line)
{
    ColorLayer working;
    const ShaderResult result = ParameterReader(line).numbers(working.values()).result();
    if (result == ShaderResult::ok)
        shader.addLayer(newObject<ColorLayer>(working));
    return result;
}

} // namespace zrk
