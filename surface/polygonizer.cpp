#include "surface/polygonizer.h"

#include "surface/field_sampling.h"
#include "surface/float4.h"
#include "surface/frustum.h"
#include "surface/marching_cubes_tables.h"
#include "surface/view_frustum.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

namespace {

BoundingBox octantBox(const GridLines& lines, std::size_t octant)
{
    const auto& [x, y, z] = cornerOffset[octant];
    return {{lines[x][0], lines[y][1], lines[z][2]},
            {lines[x + 1][0], lines[y + 1][1], lines[z + 1][2]}};
}

CornerValues octantCorners(const Grid& grid, std::size_t octant)
{
    const auto& [ox, oy, oz] = cornerOffset[octant];
    CornerValues values;
    for (std::size_t corner = 0; corner < cornerCount; ++corner) {
        const auto& [cx, cy, cz] = cornerOffset[corner];
        values[corner] = grid[oy + cy][oz + cz][ox + cx];
    }
    return values;
}

/// The bits in a case index of the two corners that end an edge along x, in a byte each:
///
///     15 ...... 8 | 7 ....... 0
///     corner at   | corner at
///     minimum x   | maximum x
constexpr std::int32_t edgeBits(int cornerAtMinimum, int cornerAtMaximum)
{
    return 1 << (8 + cornerAtMinimum) | 1 << cornerAtMaximum;
}

/// The case indices of a cell's octants, as `caseIndexOf` has them for each.
OctantMasks octantCases(const Grid& grid, float threshold)
{
    // An octant has four edges along x, at the offsets [y][z]. Each takes two neighbouring lanes of
    // a row of the grid. A lane may be either end of an edge, so it gets the bits of both, and the
    // octant picks the byte it needs from each of its two lanes.
    static constexpr std::int32_t cornerBits[2][2]{{edgeBits(0, 1), edgeBits(3, 2)},
                                                   {edgeBits(4, 5), edgeBits(7, 6)}};
    Int4 outside[2][2]{};
    for (std::size_t y = 0; y < 2; ++y)
        for (std::size_t z = 0; z < 2; ++z)
            for (std::size_t b = 0; b < 2; ++b)
                for (std::size_t e = 0; e < 2; ++e)
                    outside[y][z] |= ~(grid[y + b][z + e] >= threshold) & cornerBits[b][e];
    OctantMasks cases;
    for (std::size_t y = 0; y < 2; ++y) {
        const auto& [front, back] = outside[y];
        const Int4 atMinimum{front[0], front[1], back[1], back[0]};
        const Int4 atMaximum{front[1], front[2], back[2], back[1]};
        cases[y] = atMinimum >> 8 | (atMaximum & 0xff);
    }
    return cases;
}

/// The octants that may hold surface, one bit each. One with all corners inside is dropped, hollows
/// and all. In one with all corners outside a small ball may lie between them, if the field reaches
/// the threshold anywhere in it.
unsigned octantsToVisit(const OctantMasks& cases, unsigned reachingThreshold)
{
    return octantsWith(cases[0] != allInside, cases[1] != allInside) &
           (octantsWith(cases[0] != allOutside, cases[1] != allOutside) | reachingThreshold);
}

void setCornerSamples(CornerSamples& samples, const BoundingBox& box, const CornerValues& values)
{
    for (std::size_t corner = 0; corner < cornerCount; ++corner) {
        const Vec3 p = cornerPosition(box, corner);
        samples[corner] = std::bit_cast<CornerSample>(Float4{p.x, p.y, p.z, values[corner]});
    }
}

/// Takes a node for an octant and links it to its parent.
OctreeNode& addChild(OctreeNode& node, std::size_t octant, const GridLines& lines)
{
    OctreeNode* const child = nodePool.take();
    node.children[octant] = child;
    child->bounds.copyExtent(octantBox(lines, octant));
    child->children.fill(nullptr);
    return *child;
}

void setGridPoints(GridPoints& points, const Grid& grid, const GridLines& lines)
{
    for (std::size_t a = 0; a < 3; ++a)
        for (std::size_t b = 0; b < 3; ++b)
            for (std::size_t e = 0; e < 3; ++e)
                points[gridPoint(a, b, e)] =
                    Float4{lines[a][0], lines[b][1], lines[e][2], grid[b][e][a]};
}

} // namespace

void Polygonizer::begin(std::span<const Metaball> balls, const BoundingBox& region,
                        std::uint32_t newMaxDepth, float newThreshold)
{
    nearbyBalls.begin(balls, region, newMaxDepth);
    maxDepth = newMaxDepth;
    threshold = newThreshold;
}

void Polygonizer::subdivide(OctreeNode& node, const CornerValues& values, std::uint32_t depth,
                            std::uint8_t caseIndex, std::uint8_t visibility)
{
    if (depth == maxDepth) {
        if (caseIndex != allOutside) {
            setCornerSamples(leafSamples, node.bounds, values);
            polygonizeLeaf(leafSamples, caseIndex);
        }
        return;
    }

    const GridLines lines = gridLines(node.bounds);
    const Grid grid = sampleGrid(nearbyBalls.at(depth), lines, values);
    const OctantMasks cases = octantCases(grid, threshold);
    const unsigned met = nearbyBalls.measureOctants(depth, lines);
    // Octants with all corners outside: a leaf draws nothing then, no matter what lies within.
    const bool leaves = depth + 1 == maxDepth;
    const unsigned reaching = leaves ? 0 : nearbyBalls.octantsReaching(depth, threshold);
    const unsigned candidates = octantsToVisit(cases, reaching) & met;
    testedBox.copyExtent(node.bounds);
    const OctantMasks visibilities = viewFrustum.classifyOctants(testedBox, candidates, visibility);
    const unsigned visited = candidates & octantsWith(visibilities[0] != 0, visibilities[1] != 0);
    for (unsigned open = visited; open != 0; open &= open - 1) {
        const auto k = static_cast<std::size_t>(std::countr_zero(open));
        OctreeNode& child = addChild(node, k, lines);
        if (leaves) {
            leafBatch.add(k, maskOf(cases, k));
        } else {
            nearbyBalls.enterOctant(depth, k);
            subdivide(child, octantCorners(grid, k), depth + 1, maskOf(cases, k),
                      maskOf(visibilities, k));
        }
    }
    // All leaves among the octants are drawn together here, in the order of their visit.
    if (leaves && visited != 0) {
        setGridPoints(leafBatch.points, grid, lines);
        leafBatch.draw(nearbyBalls.at(depth), threshold);
    }
}

// The leaf is drawn as octant 0 of a cell without other octants.
void Polygonizer::polygonizeLeaf(const CornerSamples& samples, std::uint8_t caseIndex)
{
    if (edgeTable[caseIndex] == 0)
        return;
    for (std::size_t corner = 0; corner < cornerCount; ++corner) {
        const auto& [x, y, z] = cornerOffset[corner];
        leafBatch.points[gridPoint(x, y, z)] = std::bit_cast<Float4>(samples[corner]);
    }
    leafBatch.add(0, caseIndex);
    leafBatch.draw(nearbyBalls.at(0), threshold);
}
