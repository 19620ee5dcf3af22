#include "app/camera.h"
#include "app/metaball_motion.h"
#include "app/out_of_memory.h"
#include "surface/metaball_surface.h"
#include "surface/view_frustum.h"
#include "zrk/library_data.h"
#include "zrk/renderer.h"
#include "zrk/shaders/layer_registry.h"

// The long-lived objects, constructed from top to bottom before the entry runs and destroyed from
// bottom to top after it returns. They are defined in one file because the order across several
// files is not defined.

namespace {
const bool outOfMemoryHandled = handleOutOfMemory(); // the objects below allocate already
}

Camera camera;
constinit Frustum& viewFrustum = camera.frustum; // all that surfaces see of the camera

namespace zrk {
LayerRegistry layerRegistry; // owns the layers that shaders point to
LibraryData libraryData;     // textures, then shaders
} // namespace zrk

MetaballSurface metaballSurface; // points to a shader of the library
Vec3 amplitudes[metaballCount];
Vec3 frequencies[metaballCount];
Vec3 phases[metaballCount];
float radii[metaballCount];

namespace zrk {
Renderer renderer; // destroyed first, and shuts SDL down
}
