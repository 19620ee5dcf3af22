#pragma once

#include <functional>

namespace caustics {

/// Calls `work` once for every number from 0 to `count` − 1, on `threads` threads, or fewer if the
/// system grants no more. Rethrows an exception of `work` once all threads have ended.
void inParallel(int count, int threads, const std::function<void(int)>& work);

} // namespace caustics
