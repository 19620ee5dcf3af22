#pragma once

#include <span>

namespace zrk {

/// The line that the parser works on: 16384 bytes including the terminator, one for the whole
/// process. Call `makeLineBuffer` before.
std::span<char> lineBuffer();

/// Allocates the line buffer at the first call; it is never freed. Throws `Cexception` without
/// memory.
void makeLineBuffer();

} // namespace zrk
