#pragma once

namespace platform {

/// Loads the entry points of platform/gl_entry_points.h. A context must be current. False when the
/// driver lacks one: then none may be called.
[[nodiscard]] bool loadGlEntryPoints();

} // namespace platform
