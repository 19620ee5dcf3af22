#include "zrk/renderer.h"
#include "zrk/shaders/layer_registry.h"

// What the library expects of its program.
namespace zrk {

LayerRegistry layerRegistry;
Renderer renderer;

} // namespace zrk
