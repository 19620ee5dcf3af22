#pragma once

#include "zrk/owned_string.h"

#include <cstdint>
#include <memory>
#include <span>

namespace zrk {

class ShaderLayer;
enum class LayerKind : std::int32_t;

/// A named list of layers. Applying it puts OpenGL into the state that its layers describe; the
/// next shader's apply sets everything that this one controls.
class Shader {
public:
    bool hasBlend = false;   ///< Holds a blend layer: drawing is blended.
    bool hasTexture = false; ///< Holds a texture or multitexture layer.
    bool hasColor = false;   ///< Holds a color layer.
    String name;

    /// The first shader of the process also makes the parser's `lineBuffer`.
    Shader();

    /// Shares the layers, which the `layerRegistry` owns, and copies everything else. No memory is
    /// `Cexception` and leaves the shader as it was.
    Shader& operator=(const Shader& other);
    Shader(const Shader&) = delete;

    /// Puts `layer` at the end, hands it to the `layerRegistry` and sets the flag of its kind,
    /// which is returned; the multitexture kind has none. No memory is `Cexception` and leaves the
    /// shader as it was.
    LayerKind addLayer(std::unique_ptr<ShaderLayer> layer);

    /// Sets the OpenGL state of the layers, first to last. A context must be current.
    void apply() const;

    std::span<ShaderLayer* const> layers() const { return {layerPointers.get(), layerCount}; }

private:
    std::uint32_t layerCount = 0;
    std::unique_ptr<ShaderLayer*[]> layerPointers;
};

} // namespace zrk
