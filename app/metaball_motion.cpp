#include "app/metaball_motion.h"

#include <cmath>
#include <cstdlib>
#include <numbers>

namespace {

constexpr int randomRange = 32768; // distinct random values, whatever RAND_MAX is

int randomValue()
{
    return std::rand() % randomRange;
}

// Uniform in [low, low + extent).
float randomFrom(double low, double extent)
{
    return static_cast<float>(randomValue() * (extent / randomRange) + low);
}

Vec3 randomVector(double low, double extent)
{
    // Braces evaluate from left to right; the arguments of a call may be evaluated in any order.
    return Vec3{randomFrom(low, extent), randomFrom(low, extent), randomFrom(low, extent)};
}

} // namespace

MetaballMotion randomMotion()
{
    return MetaballMotion{
        .amplitude = randomVector(0.0, amplitudeLimit),
        .frequency = randomVector(-2.0, 4.0),
        .phase = randomVector(0.0, 2.0 * std::numbers::pi),
        .radius = randomFrom(150.0, 350.0),
    };
}

Vec3 centreAt(const MetaballMotion& motion, float time)
{
    const auto& [amplitude, frequency, phase, radius] = motion;
    const double t = time;
    // Meant: a cosine on y, sines on x and z.
    return {static_cast<float>(amplitude.x * std::sin((t + phase.x) * frequency.x)),
            static_cast<float>(amplitude.y * std::cos((t + phase.y) * frequency.y)),
            static_cast<float>(amplitude.z * std::sin((t + phase.z) * frequency.z))};
}
