#pragma once

#include <cstdint>

namespace zrk {

/// Thrown whenever an allocation yields no memory. Nothing catches it: the process ends.
struct Cexception {
    std::int32_t first = 1;
    std::int32_t second = 2;
};

} // namespace zrk
