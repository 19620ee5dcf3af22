#pragma once

#include <span>

namespace zrk {

/// Where the parser puts the line that it works on: 16384 bytes, the terminator included, for
/// the whole process. `makeLineBuffer` comes first.
std::span<char> lineBuffer();

/// Allocates the line buffer, once; it is never freed. No memory is `Cexception`.
void makeLineBuffer();

} // namespace zrk
