#include "surface/leaf_batch.h"

#include "surface/edge_crossing.h"
#include "surface/field_sampling.h"
#include "surface/marching_cubes_tables.h"

#include <bit>

namespace {

/// From a grid point to the next, by direction.
constexpr std::array<int, 6> steps{9, -9, 3, -3, 1, -1};

constexpr std::size_t gridPointOf(std::size_t corner)
{
    const auto& [x, y, z] = cornerOffset[corner];
    return gridPoint(x, y, z);
}

constexpr std::size_t directionOf(std::size_t edge)
{
    const int step = static_cast<int>(gridPointOf(edgeCorners[edge].to)) -
                     static_cast<int>(gridPointOf(edgeCorners[edge].from));
    std::size_t direction = 0;
    while (steps[direction] != step)
        ++direction;
    return direction;
}

/// The numbers of the edges of octant 0. Those of another octant are higher by its grid point.
constexpr std::array<std::uint8_t, edgeCount> numberEdges()
{
    std::array<std::uint8_t, edgeCount> numbers{};
    for (std::size_t edge = 0; edge < edgeCount; ++edge)
        numbers[edge] =
            static_cast<std::uint8_t>(32 * directionOf(edge) + gridPointOf(edgeCorners[edge].from));
    return numbers;
}

constexpr std::array<std::uint8_t, edgeCount> edgeNumber = numberEdges();

/// By case and direction, the grid points at which a crossed edge of octant 0 starts, one bit each.
constexpr std::array<std::array<std::uint16_t, steps.size()>, 256> findStarts()
{
    std::array<std::array<std::uint16_t, steps.size()>, 256> starts{};
    for (std::size_t index = 0; index < starts.size(); ++index) {
        for (std::size_t edge = 0; edge < edgeCount; ++edge) {
            const auto& [from, to] = edgeCorners[edge];
            if ((index >> from & 1u) != (index >> to & 1u))
                starts[index][directionOf(edge)] |=
                    static_cast<std::uint16_t>(1u << gridPointOf(from));
        }
    }
    return starts;
}

constexpr auto startsOfCase = findStarts();

Coordinates<Float4> transposed(const std::array<Float4, 4>& p)
{
    return {Float4{p[0][0], p[1][0], p[2][0], p[3][0]}, Float4{p[0][1], p[1][1], p[2][1], p[3][1]},
            Float4{p[0][2], p[1][2], p[2][2], p[3][2]}};
}

} // namespace

// A case crosses the same edges in every octant, moved in the grid: there is no loop over edges,
// whose number could not be predicted.
void LeafBatch::add(std::size_t octant, std::uint8_t caseIndex)
{
    leaves[leafCount++] = {static_cast<std::uint8_t>(octant), caseIndex};
    for (std::size_t direction = 0; direction < directionCount; ++direction)
        crossedStarts[direction] |= std::uint32_t{startsOfCase[caseIndex][direction]}
                                    << gridPointOf(octant);
}

std::size_t LeafBatch::listCrossedEdges()
{
    std::size_t count = 0;
    for (std::size_t direction = 0; direction < directionCount; direction += 2) {
        std::uint64_t open = crossedStarts[direction] | std::uint64_t{crossedStarts[direction + 1]}
                                                            << 32;
        for (; open != 0; open &= open - 1)
            crossed[count++] = static_cast<std::uint8_t>(
                32 * direction + static_cast<std::size_t>(std::countr_zero(open)));
    }
    for (std::size_t i = 0; i < 3; ++i)
        crossed[count + i] = crossed[0];
    crossedStarts.fill(0);
    return count;
}

void LeafBatch::draw(std::span<const NearbyBall> balls, float threshold)
{
    const std::size_t count = listCrossedEdges();
    for (std::size_t group = 0; group < count; group += 4) {
        std::array<Float4, 4> p;
        for (std::size_t i = 0; i < 4; ++i) {
            const std::size_t edge = crossed[group + i];
            const Float4* const from = &points[edge % 32];
            const Float4* const to = from + steps[edge / 32];
            p[i] = crossingBetween(*from, *to, (*from)[3], (*to)[3], threshold);
        }
        const auto [s, t, z] = surfaceTexCoords(balls, transposed(p));
        for (std::size_t i = 0; i < 4; ++i)
            vertices[crossed[group + i]] = {p[i], s[i], t[i]};
    }
    for (const auto& [octant, caseIndex] : std::span(leaves.data(), leafCount))
        drawLeaf(std::span(vertices).subspan(gridPointOf(octant)), edgeNumber, caseIndex);
    leafCount = 0;
}
