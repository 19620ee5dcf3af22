#pragma once

#include <cstdint>

namespace zrk {

/// Result of reading shaders: 0 is success, a positive code is an error and stops the load, a
/// negative code is a warning and does not.
enum class ShaderResult : std::int32_t {
    ok = 0,
    missingOpeningBrace = 1,
    missingClosingBrace = 2,
    readError = 3, ///< The stream failed before the end of the file.
    unknownParameter = 4,
    wrongParameterCount = 5,
    cannotOpenFile = 6,
    cannotCloseFile = 7,
    writeError = 8,
    emptyShader = -1,
    nothingToLoad = -2, ///< No line could be read where a name was expected.
};

constexpr bool isError(ShaderResult result)
{
    return static_cast<std::int32_t>(result) > 0;
}

/// The log message for `result`, without a line end.
const char* messageFor(ShaderResult result);

} // namespace zrk
