#pragma once

#include <cstdint>

namespace zrk {

/// What came of reading shaders: 0 is success, a positive code stops the load, a negative one is
/// a warning and does not.
enum class ShaderResult : std::int32_t {
    ok = 0,
    missingOpeningBrace = 1,
    missingClosingBrace = 2,
    readError = 3, ///< The stream failed before its end.
    unknownParameter = 4,
    wrongParameterCount = 5,
    cannotOpenFile = 6,
    cannotCloseFile = 7,
    writeError = 8,
    emptyShader = -1,
    nothingToLoad = -2, ///< No line where a shader's name was expected.
};

constexpr bool isError(ShaderResult result)
{
    return static_cast<std::int32_t>(result) > 0;
}

/// The text of `result` for a log, without a line end.
const char* messageFor(ShaderResult result);

} // namespace zrk
