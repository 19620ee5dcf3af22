#pragma once

#include <cstdint>
#include <memory>

namespace zrk {

class ShaderLayer;

/// Owns every layer that was ever added to a shader, so that shaders may share them; a list in the
/// order of adding. The layers die with it, first to last.
class LayerRegistry {
public:
    LayerRegistry();
    LayerRegistry(const LayerRegistry&) = delete;
    LayerRegistry& operator=(const LayerRegistry&) = delete;
    ~LayerRegistry();

    /// No memory is `Cexception`, and the layer is deleted.
    void add(std::unique_ptr<ShaderLayer> layer);

    std::uint32_t count() const { return nodeCount; }

private:
    struct Node;

    std::uint32_t nodeCount = 0;
    std::unique_ptr<Node> head;
    Node* tail = nullptr;
};

/// Outlives every shader.
extern LayerRegistry layerRegistry;

} // namespace zrk
