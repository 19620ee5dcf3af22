#include "surface/nearby_balls.h"

#include "surface/bounding_box.h"
#include "surface/metaball.h"
#include "surface/metaball_field.h"
#include "zrk/allocation.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// How far outside its cell a sample may lie: a gradient step before a vertex, and what rounding
/// may add to that.
float sampleMargin(const BoundingBox& region)
{
    float farthest = 0.0f;
    for (const Vec3& corner : region.corners)
        farthest = std::max({farthest, std::abs(corner.x), std::abs(corner.y), std::abs(corner.z)});
    return gradientStep + 8.0f * std::numeric_limits<float>::epsilon() * farthest;
}

FieldBall fieldBall(const Metaball& ball, float margin)
{
    // The field ends where the falloff says, the bounds where the radius does: one of the two may
    // have been written without the other. A thousandth more is far beyond what rounding can do to
    // a ball's own terms.
    const auto& [radius, centre] = ball.bounds;
    const float fieldRadius = std::sqrt(0.5f / ball.falloff);
    const float reach = (std::max(fieldRadius, std::abs(radius)) + margin) * 1.001f;
    return {broadcast(ball.centre.x),
            broadcast(ball.centre.y),
            broadcast(ball.centre.z),
            broadcast(ball.falloff),
            Float4{centre.x, centre.y, centre.z},
            radius * radius,
            reach * reach};
}

/// The squared way from `c` to the nearest number between `low` and `high`.
Float4 distance2(Float4 c, Float4 low, Float4 high)
{
    const Float4 below = c - low;
    const Float4 above = c - high;
    const Float4 d = below < 0.0f ? below : above > 0.0f ? above : Float4{};
    return d * d;
}

} // namespace

void NearbyBalls::begin(std::span<const Metaball> balls, const BoundingBox& region,
                        std::uint32_t maxDepth)
{
    if (ballCount != balls.size() || depthCount != std::size_t{maxDepth} + 1)
        resize(static_cast<std::uint32_t>(balls.size()), std::size_t{maxDepth} + 1);
    const float margin = sampleMargin(region);
    for (std::size_t i = 0; i < balls.size(); ++i) {
        fieldBalls[i] = fieldBall(balls[i], margin);
        lists[i].ball = &fieldBalls[i];
    }
    counts[0] = ballCount;
}

void NearbyBalls::resize(std::uint32_t newBallCount, std::size_t newDepthCount)
{
    // None until all arrays are there: `Cexception` may be survived.
    ballCount = 0;
    depthCount = 0;
    fieldBalls = zrk::newArray<FieldBall>(newBallCount);
    lists = zrk::newArray<NearbyBall>(newBallCount * newDepthCount);
    counts = zrk::newArray<std::uint32_t>(newDepthCount);
    ballCount = newBallCount;
    depthCount = newDepthCount;
}

void NearbyBalls::measureOctants(std::uint32_t depth, const GridLines& lines)
{
    const auto& [low, middle, high] = lines;
    NearbyBall* const list = lists.get() + std::size_t{depth} * ballCount;
    for (auto& [ball, toOctants2] : std::span(list, counts[depth])) {
        const Float4 toLow = distance2(ball->boundsCentre, low, middle);
        const Float4 toHigh = distance2(ball->boundsCentre, middle, high);
        // In corner order, which goes around a face.
        const Float4 toX{toLow[0], toHigh[0], toHigh[0], toLow[0]};
        const Float4 toZ{toLow[2], toLow[2], toHigh[2], toHigh[2]};
        toOctants2 = {toX + toLow[1] + toZ, toX + toHigh[1] + toZ};
    }
}

unsigned NearbyBalls::octantsReaching(std::uint32_t depth, float level) const
{
    // No ball adds more than it does at its distance to the octant.
    std::array<Float4, 2> bounds{};
    for (const auto& [ball, toOctants2] : at(depth))
        for (std::size_t half = 0; half < 2; ++half)
            bounds[half] += fieldShare(ball->falloff, toOctants2[half]);

    // Far more than the bounds and the samples may be off by rounding.
    const float slack = 1e-5f * static_cast<float>(ballCount) * std::max(1.0f, level);
    unsigned octants = 0;
    for (std::size_t octant = 0; octant < cornerCount; ++octant)
        octants |= (bounds[octant / 4][octant % 4] < level - slack ? 0u : 1u) << octant;
    return octants;
}

bool NearbyBalls::enterOctant(std::uint32_t depth, std::size_t octant)
{
    NearbyBall* const list = lists.get() + std::size_t{depth + 1} * ballCount;
    std::uint32_t count = 0;
    bool met = false;
    for (const auto& [ball, toOctants2] : at(depth)) {
        const float d2 = toOctants2[octant / 4][octant % 4];
        met |= d2 <= ball->radius2;
        // Written in any case, kept if near: a branch could not be predicted.
        list[count].ball = ball;
        count += d2 > ball->reach2 ? 0 : 1; // what is no number stays
    }
    counts[depth + 1] = count;
    return met;
}
