#include "zrk/shaders/layer_registry.h"

#include "zrk/allocation.h"
#include "zrk/shaders/shader_layer.h"

#include <utility>

namespace zrk {

struct LayerRegistry::Node {
    std::unique_ptr<ShaderLayer> layer;
    std::unique_ptr<Node> next;
};

LayerRegistry::LayerRegistry() = default;

LayerRegistry::~LayerRegistry()
{
    // Iteratively: destroying the head would destroy its successor recursively, one stack frame per
    // layer.
    while (head)
        head = std::move(head->next);
}

void LayerRegistry::add(std::unique_ptr<ShaderLayer> layer)
{
    std::unique_ptr<Node>& end = tail == nullptr ? head : tail->next;
    end = newObject<Node>();
    tail = end.get();
    tail->layer = std::move(layer);
    ++nodeCount;
}

} // namespace zrk
