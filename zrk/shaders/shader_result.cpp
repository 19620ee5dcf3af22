#include "zrk/shaders/shader_result.h"

#include <cstddef>

namespace zrk {

namespace {

// In the order of the codes 0 to writeError, then -1, -2.
constexpr const char* messages[] = {
    "ok",
    "error: missing '{'",
    "error: missing '}'",
    "error: read error",
    "error: unknown parameter",
    "error: incorrect number of parameters",
    "error: cannot open file",
    "error: cannot close file",
    "error: write error",
    "warning: empty shader",
    "warning: nothing to load",
};

} // namespace

const char* messageFor(ShaderResult result)
{
    constexpr int lastError = static_cast<int>(ShaderResult::writeError);
    const int code = static_cast<int>(result);
    return messages[static_cast<std::size_t>(code >= 0 ? code : lastError - code)];
}

} // namespace zrk
