#pragma once

#include <functional>

namespace caustics {

/// Runs `work` once for every number from 0 to `count` − 1, `threads` of them at a time, or as many
/// as the system grants. An exception of `work` comes out of here, after the others have ended.
void inParallel(int count, int threads, const std::function<void(int)>& work);

} // namespace caustics
