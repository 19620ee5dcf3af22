#pragma once

#include <cstdint>
#include <cstdio>

namespace zrk {

class String;
class TexturePool;

enum class LayerKind : std::int32_t {
    blend = 0,
    texture = 4,
    multitexture = 5,
    color = 6,
};

/// One piece of the OpenGL state that a shader describes. Every layer is allocated by itself; the
/// `layerRegistry` deletes it. `apply`, `reapply` and `readBack` need a current context.
class ShaderLayer {
public:
    /// A texture layer's position in the `TexturePool`; the other kinds leave it 0.
    std::int32_t index = 0;

    ShaderLayer() = default;
    ShaderLayer& operator=(const ShaderLayer&) = delete;
    virtual ~ShaderLayer() = default;

    /// Sets the layer's OpenGL state, skipping calls that a cache shows to be unnecessary.
    virtual void apply() = 0;

    /// Sets the layer's whole OpenGL state, regardless of the caches.
    virtual void reapply() = 0;

    /// Fills the layer's fields from the current OpenGL state.
    virtual void readBack() = 0;

    /// Replaces `out` by the layer's line for a shaders pool file.
    virtual void toText(String& out) const = 0;

    /// Prints the layer's line, indented by two spaces and without a line end.
    virtual void write(std::FILE* out) const = 0;

    /// Looks up the OpenGL names of the layer's textures, which exist once `pool` is uploaded.
    virtual void resolve(const TexturePool& pool) = 0;

    virtual LayerKind kind() const { return LayerKind{}; }

protected:
    // The index is not copied.
    ShaderLayer(const ShaderLayer&) {}
};

} // namespace zrk
