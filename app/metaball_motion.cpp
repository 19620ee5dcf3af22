#include "app/metaball_motion.h"

#include <cmath>
#include <cstdlib>
#include <numbers>

namespace {

constexpr int randomRange = 32768; // values that a draw can have, whatever RAND_MAX is

int draw()
{
    return std::rand() % randomRange;
}

// From `low` to `low + extent`, that one excluded.
float drawFrom(double low, double extent)
{
    return static_cast<float>(draw() * (extent / randomRange) + low);
}

Vec3 drawVector(double low, double extent)
{
    // Braces keep the draws in order; the arguments of a call might be drawn in any.
    return Vec3{drawFrom(low, extent), drawFrom(low, extent), drawFrom(low, extent)};
}

} // namespace

MetaballMotion randomMotion()
{
    return MetaballMotion{
        .amplitude = drawVector(0.0, amplitudeLimit),
        .frequency = drawVector(-2.0, 4.0),
        .phase = drawVector(0.0, 2.0 * std::numbers::pi),
        .radius = drawFrom(150.0, 350.0),
    };
}

Vec3 centreAt(const MetaballMotion& motion, float time)
{
    const auto& [amplitude, frequency, phase, radius] = motion;
    const double t = time;
    // A cosine on y only: it is meant.
    return {static_cast<float>(amplitude.x * std::sin((t + phase.x) * frequency.x)),
            static_cast<float>(amplitude.y * std::cos((t + phase.y) * frequency.y)),
            static_cast<float>(amplitude.z * std::sin((t + phase.z) * frequency.z))};
}
