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

/// One piece of the OpenGL state that a shader describes. Layers are allocated singly and deleted
/// by the `layerRegistry` alone. `apply`, `reapply` and `readBack` want a current context.
class ShaderLayer {
public:
    /// Position of the layer's texture in the `TexturePool`; 0 for kinds with another idea of it.
    std::int32_t index = 0;

    ShaderLayer() = default;
    ShaderLayer& operator=(const ShaderLayer&) = delete;
    virtual ~ShaderLayer() = default;

    /// Sets the layer's state, less what a cache shows to be set already.
    virtual void apply() = 0;

    /// Sets the layer's whole state, whatever the caches show.
    virtual void reapply() = 0;

    /// Fills the layer's fields from the current OpenGL state.
    virtual void readBack() = 0;

    /// Replaces `out` by the layer's line in a shaders pool file.
    virtual void toText(String& out) const = 0;

    /// Prints the layer's line, indented by two blanks and without a line end.
    virtual void write(std::FILE* out) const = 0;

    /// Turns texture positions into OpenGL texture names, which are final only after the upload.
    virtual void resolve(const TexturePool& pool) = 0;

    virtual LayerKind kind() const { return LayerKind{}; }

protected:
    // A copy is a layer of its own, which starts without a texture.
    ShaderLayer(const ShaderLayer&) {}
};

} // namespace zrk
