#pragma once

#include <cstdint>
#include <memory>

namespace zrk {

class ShaderLayer;

/// Owns every layer ever added to a shader, so that copied shaders can share layers. A linked list
/// in the order of adding; the destructor deletes the layers in that order.
class LayerRegistry {
public:
    LayerRegistry();
    LayerRegistry(const LayerRegistry&) = delete;
    LayerRegistry& operator=(const LayerRegistry&) = delete;
    ~LayerRegistry();

    /// Throws `Cexception` without memory; the layer is deleted then.
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
