#include "platform/windows/gl_loading.h"

#include "platform/gl_entry_points.h"
#include "platform/windows/wgl_procedure.h"

#define QUAZO_DEFINE(name, Type) constinit Type name = nullptr;
QUAZO_LATER_GL_ENTRY_POINTS(QUAZO_DEFINE)
#undef QUAZO_DEFINE

namespace platform {

bool loadGlEntryPoints()
{
    bool complete = true;
#define QUAZO_LOAD(name, Type)                                                                     \
    name = wglProcedure<Type>(#name);                                                              \
    complete = complete && (name) != nullptr;
    QUAZO_LATER_GL_ENTRY_POINTS(QUAZO_LOAD)
#undef QUAZO_LOAD
    return complete;
}

} // namespace platform
