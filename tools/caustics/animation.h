#pragma once

#include "tools/caustics/data_files.h"
#include "tools/caustics/tile.h"
#include "tools/caustics/water.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace caustics {

/// What decides the loop; the threads, which share its frames out among them, do not.
struct AnimationSettings {
    std::uint64_t seed;
    int size; // texels along a side of an image
    int threads;
};

/// How many times `makeFiles` calls its `step`, from any of its threads.
constexpr int animationSteps = 2 * frameCount;

/// The light on the floor in each frame: flat tiles half as large again as the images, where 1 is
/// what the sun would shed on a plane that faces it. Calls `step` after each.
std::vector<Tile> makeLight(const AnimationSettings& settings, const std::function<void()>& step);

/// The whole data set: the images, scaled by the mean light of them all, and the text files.
std::vector<DataFile> makeFiles(const AnimationSettings& settings,
                                const std::function<void()>& step);

} // namespace caustics
