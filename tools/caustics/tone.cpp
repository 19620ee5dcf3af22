#include "tools/caustics/tone.h"

#include <algorithm>
#include <cmath>

namespace caustics {

float toneOf(float light)
{
    constexpr float exposure = 0.42f;
    constexpr float white = 2.8f; // the exposed light that first reaches full brightness
    constexpr float contrast = 1.4f;
    const float exposed = exposure * light;
    const float bent = exposed * (1.0f + exposed / (white * white)) / (1.0f + exposed);
    return std::min(1.0f, std::pow(bent, contrast));
}

} // namespace caustics
