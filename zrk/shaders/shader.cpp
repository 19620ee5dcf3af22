#include "zrk/shaders/shader.h"

#include "zrk/allocation.h"
#include "zrk/gl.h"
#include "zrk/shaders/layer_registry.h"
#include "zrk/shaders/line_buffer.h"
#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/texture_units.h"

#include <algorithm>
#include <utility>

namespace zrk {

Shader::Shader()
{
    makeLineBuffer();
}

Shader& Shader::operator=(const Shader& other)
{
    if (this == &other)
        return *this;
    std::unique_ptr<ShaderLayer*[]> pointers = newArray<ShaderLayer*>(other.layerCount);
    std::ranges::copy(other.layers(), pointers.get());
    name = other.name; // the last step that may fail
    layerPointers = std::move(pointers);
    layerCount = layerCapacity = other.layerCount;
    hasBlend = other.hasBlend;
    hasTexture = other.hasTexture;
    hasColor = other.hasColor;
    return *this;
}

LayerKind Shader::addLayer(std::unique_ptr<ShaderLayer> layer)
{
    ShaderLayer& added = *layer;
    // First the room and then the registry, so that it never owns a layer that no shader lists.
    if (layerCount == layerCapacity)
        growLayers();
    layerRegistry.add(std::move(layer));
    layerPointers[layerCount++] = &added;

    const LayerKind kind = added.kind();
    hasBlend |= kind == LayerKind::blend;
    hasTexture |= kind == LayerKind::texture;
    hasColor |= kind == LayerKind::color;
    return kind;
}

// Doubled: one more at a time would copy every pointer once for each that follows it.
void Shader::growLayers()
{
    const std::uint32_t newCapacity = 2 * layerCapacity + 1;
    std::unique_ptr<ShaderLayer*[]> longer = newArray<ShaderLayer*>(newCapacity);
    std::ranges::copy(layers(), longer.get());
    layerPointers = std::move(longer);
    layerCapacity = newCapacity;
}

void Shader::apply() const
{
    // Blending is set every time. Colour and texturing are caches: they cost a call only if an
    // earlier shader changed them.
    if (hasBlend)
        glEnable(GL_BLEND);
    else
        glDisable(GL_BLEND);
    if (!hasColor)
        restoreColor();
    if (!hasTexture)
        setTextureUnits(0);
    for (ShaderLayer* layer : layers())
        layer->apply();
}

} // namespace zrk
