#pragma once

#include <cstdint>

namespace zrk {

/// Thrown when an allocation fails. Nothing catches it, so it ends the process.
struct Cexception {
    std::int32_t first = 1;
    std::int32_t second = 2;
};

} // namespace zrk
