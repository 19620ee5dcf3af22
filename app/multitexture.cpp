#include "app/multitexture.h"

#include "platform/win32.h"
#include "zrk/renderer.h"

#include <cstdint>
#include <string_view>

namespace {

constexpr GLint fewestUnits = 2; // with one unit there is nothing to select

// Without the extension GL_MAX_TEXTURE_UNITS is an error, so it is queried last.
GLint textureUnits()
{
    const auto* extensions = reinterpret_cast<const char*>(glGetString(GL_EXTENSIONS));
    if (extensions == nullptr || !hasExtension(extensions, "GL_ARB_multitexture"))
        return 1;
    GLint units = 1;
    glGetIntegerv(GL_MAX_TEXTURE_UNITS, &units);
    return units;
}

} // namespace

bool hasExtension(const char* extensions, const char* name)
{
    std::string_view rest = extensions;
    while (!rest.empty()) {
        const std::string_view word = rest.substr(0, rest.find(' '));
        if (word == name)
            return true;
        rest.remove_prefix(word.size() < rest.size() ? word.size() + 1 : rest.size());
    }
    return false;
}

void obtainMultitexture()
{
    const GLint units = textureUnits();
    if (units < fewestUnits)
        return;
    // Through a plain function pointer: a direct cast between the two types draws a warning.
    using AnyFunction = void (*)();
    const auto function = reinterpret_cast<AnyFunction>(wglGetProcAddress("glActiveTextureARB"));
    if (function == nullptr)
        return;
    zrk::renderer.glActiveTextureARB = reinterpret_cast<PFNGLACTIVETEXTUREARBPROC>(function);
    zrk::renderer.multitextureAvailable = true;
    zrk::renderer.textureUnits = static_cast<std::uint32_t>(units);
}
