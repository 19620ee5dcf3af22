#pragma once

#include "tools/caustics/data_files.h"
#include "tools/caustics/tile.h"
#include "tools/caustics/water.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace caustics {

/// What to compute. The number of threads, which work on different frames, does not change a byte.
struct AnimationSettings {
    std::uint64_t seed;
    int size; // texels along a side of an image
    int threads;
};

/// How many times `makeFiles` calls its `step`, from any thread.
constexpr int animationSteps = 2 * frameCount;

/// The light on the floor in each frame, in multiples of the sun's irradiance on a plane that faces
/// it. The tiles have 1.5 times as many texels along a side as the images. Calls `step` after each.
std::vector<Tile> makeLight(const AnimationSettings& settings, const std::function<void()>& step);

/// The whole data set: the images, all exposed alike by the mean light of the set, and the text
/// files.
std::vector<DataFile> makeFiles(const AnimationSettings& settings,
                                const std::function<void()>& step);

} // namespace caustics
