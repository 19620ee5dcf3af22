#include "app/camera.h"
#include "app/metaball_motion.h"
#include "surface/metaball_surface.h"
#include "surface/view_frustum.h"
#include "zrk/library_data.h"
#include "zrk/renderer.h"
#include "zrk/shaders/layer_registry.h"

// The long-lived objects. Built from top to bottom before the entry runs, destroyed from bottom
// to top after it returns.

Camera camera;
constinit Frustum& viewFrustum = camera.frustum; // what surfaces know of the camera

namespace zrk {
LayerRegistry layerRegistry; // outlives the shaders that borrow its layers
LibraryData libraryData;     // textures, then shaders
} // namespace zrk

MetaballSurface metaballSurface; // borrows a shader of the library's
Vec3 amplitudes[metaballCount];
Vec3 frequencies[metaballCount];
Vec3 phases[metaballCount];
float radii[metaballCount];

namespace zrk {
Renderer renderer; // first to go, and takes SDL with it
}
