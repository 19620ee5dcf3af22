#include "surface/nearby_balls.h"

#include "surface/bounding_box.h"
#include "surface/metaball.h"
#include "surface/metaball_field.h"
#include "zrk/allocation.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// How far outside its cell a sample may lie: one gradient step, and a few units in the last place
/// of a coordinate.
float sampleMargin(const BoundingBox& region)
{
    float farthest = 0.0f;
    for (const Vec3& corner : region.corners)
        farthest = std::max({farthest, std::abs(corner.x), std::abs(corner.y), std::abs(corner.z)});
    return gradientStep + 8.0f * std::numeric_limits<float>::epsilon() * farthest;
}

FieldBall fieldBall(const Metaball& ball, float margin)
{
    // The field ends where falloff * d² is 0.5, the bounds end at the radius; the two may differ
    // when one was written without the other. The factor covers all rounding in these terms.
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

/// `BoundingBox::intersects` per axis: the squared distance from `c` to an interval.
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
    // Zero until all three arrays exist: a caller may catch `Cexception` and draw another frame.
    ballCount = 0;
    depthCount = 0;
    fieldBalls = zrk::newArray<FieldBall>(newBallCount);
    lists = zrk::newArray<NearbyBall>(newBallCount * newDepthCount);
    counts = zrk::newArray<std::uint32_t>(newDepthCount);
    ballCount = newBallCount;
    depthCount = newDepthCount;
}

unsigned NearbyBalls::measureOctants(std::uint32_t depth, const GridLines& lines)
{
    OctantMasks met{};
    const auto& [low, middle, high] = lines;
    NearbyBall* const list = lists.get() + std::size_t{depth} * ballCount;
    for (auto& [ball, toOctants2] : std::span(list, counts[depth])) {
        const Float4 toLow = distance2(ball->boundsCentre, low, middle);
        const Float4 toHigh = distance2(ball->boundsCentre, middle, high);
        toOctants2 = octantSums(toLow, toHigh);
        for (std::size_t half = 0; half < 2; ++half)
            met[half] |= toOctants2[half] <= ball->radius2;
    }
    return octantsWith(met[0], met[1]);
}

unsigned NearbyBalls::octantsReaching(std::uint32_t depth, float level) const
{
    // The kernel falls with distance, so a ball's share at the point of the octant nearest to its
    // centre bounds its share anywhere in it, and the sum of these bounds the field.
    std::array<Float4, 2> bounds{};
    for (const auto& [ball, toOctants2] : at(depth))
        for (std::size_t half = 0; half < 2; ++half)
            bounds[half] += quarterShare(ball->falloff, toOctants2[half]);

    // Far more than rounding can add to the bound or the samples.
    const float slack = 1e-5f * static_cast<float>(ballCount) * std::max(1.0f, level);
    const float lowest = 0.25f * (level - slack);
    return ~octantsWith(bounds[0] < lowest, bounds[1] < lowest) & 0xff;
}

void NearbyBalls::enterOctant(std::uint32_t depth, std::size_t octant)
{
    NearbyBall* const list = lists.get() + std::size_t{depth + 1} * ballCount;
    std::uint32_t count = 0;
    for (const auto& [ball, toOctants2] : at(depth)) {
        const float d2 = toOctants2[octant / 4][octant % 4];
        // Written always, kept if near: a branch on where a ball lies is hardly predictable.
        list[count].ball = ball;
        count += d2 > ball->reach2 ? 0 : 1; // NaN counts as near
    }
    counts[depth + 1] = count;
}
