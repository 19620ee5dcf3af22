#pragma once

/// The exit status of a process that ran out of memory.
inline constexpr int outOfMemoryStatus = 2;

/// From here on a `Cexception` or `std::bad_alloc` that nothing catches ends the process with a
/// line on standard error and `outOfMemoryStatus`, not with an abort and a core dump. No destructor
/// runs: the system reclaims window, context and flag. Always true, so that an object's initialiser
/// can call it.
bool handleOutOfMemory();
