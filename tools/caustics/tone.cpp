#include "tools/caustics/tone.h"

#include <algorithm>
#include <cmath>

namespace caustics {

float toneOf(float light)
{
    constexpr float exposure = 0.42f;
    constexpr float white = 2.8f; // exposed light of full brightness
    constexpr float contrast = 1.4f;
    const float exposed = exposure * light;
    // L (1 + L / white²) / (1 + L)
    const float compressed = exposed * (1.0f + exposed / (white * white)) / (1.0f + exposed);
    return std::min(1.0f, std::pow(compressed, contrast));
}

} // namespace caustics
