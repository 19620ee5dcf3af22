#pragma once

#include "zrk/owned_string.h"

#include <cstdint>
#include <memory>
#include <span>

namespace zrk {

class ShaderLayer;
enum class LayerKind : std::int32_t;

/// A named list of layers. `apply` sets the OpenGL state that they describe. Nothing undoes a
/// shader: the next one's `apply` sets everything that this one controls.
class Shader {
public:
    bool hasBlend = false;   ///< It has a blend layer.
    bool hasTexture = false; ///< It has a texture layer, or the parser added a multitexture layer.
    bool hasColor = false;   ///< It has a color layer.
    String name;

    /// The first shader of the process also allocates the parser's `lineBuffer`.
    Shader();

    /// Shares `other`'s layers, which the `layerRegistry` owns, and copies everything else. Throws
    /// `Cexception` without memory and leaves the shader unchanged.
    Shader& operator=(const Shader& other);
    Shader(const Shader&) = delete;

    /// Appends `layer`, passes its ownership to the `layerRegistry`, sets the flag of its kind (the
    /// multitexture kind has none) and returns the kind. Throws `Cexception` without memory and
    /// leaves the shader unchanged.
    LayerKind addLayer(std::unique_ptr<ShaderLayer> layer);

    /// Switches blending, resets colour and texturing where no layer sets them, then applies the
    /// layers in order. A context must be current.
    void apply() const;

    std::span<ShaderLayer* const> layers() const { return {layerPointers.get(), layerCount}; }

private:
    void growLayers();

    std::uint32_t layerCount = 0;
    std::uint32_t layerCapacity = 0;
    std::unique_ptr<ShaderLayer*[]> layerPointers;
};

} // namespace zrk
