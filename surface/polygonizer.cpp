#include "surface/bounding_box.h"
#include "surface/cell.h"
#include "surface/frustum.h"
#include "surface/leaf_drawing.h"
#include "surface/marching_cubes_tables.h"
#include "surface/metaball_field.h"
#include "surface/metaball_surface.h"
#include "surface/view_frustum.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace {

/// A cell's minimum, middle and maximum on each axis: the lines that its octants' corners lie on.
struct GridLines {
    std::array<float, 3> x, y, z;
};

/// The field where the lines meet, by x, y and z.
using Grid = std::array<std::array<std::array<float, 3>, 3>, 3>;

GridLines gridLines(const BoundingBox& box)
{
    const Vec3& low = box.min();
    const Vec3& high = box.max();
    const Vec3 middle = low + (high - low) * 0.5f;
    return {{low.x, middle.x, high.x}, {low.y, middle.y, high.y}, {low.z, middle.z, high.z}};
}

/// The corner values at the grid's corners, and samples at its 19 other points.
Grid sampleGrid(std::span<const Metaball> balls, const GridLines& lines, const CornerValues& values)
{
    Grid grid;
    for (std::size_t a = 0; a < 3; ++a)
        for (std::size_t b = 0; b < 3; ++b)
            for (std::size_t e = 0; e < 3; ++e)
                if (a == 1 || b == 1 || e == 1)
                    grid[a][b][e] = ::fieldAt(balls, {lines.x[a], lines.y[b], lines.z[e]});
    for (std::size_t corner = 0; corner < cornerCount; ++corner) {
        const auto& [x, y, z] = cornerOffset[corner];
        grid[2 * x][2 * y][2 * z] = values[corner];
    }
    return grid;
}

CornerValues childCorners(const Grid& grid, std::size_t child)
{
    const auto& [ox, oy, oz] = cornerOffset[child];
    CornerValues values;
    for (std::size_t corner = 0; corner < cornerCount; ++corner) {
        const auto& [cx, cy, cz] = cornerOffset[corner];
        values[corner] = grid[ox + cx][oy + cy][oz + cz];
    }
    return values;
}

BoundingBox childBox(const GridLines& lines, std::size_t child)
{
    const auto& [x, y, z] = cornerOffset[child];
    return {{lines.x[x], lines.y[y], lines.z[z]}, {lines.x[x + 1], lines.y[y + 1], lines.z[z + 1]}};
}

CornerSamples cornerSamples(const BoundingBox& box, const CornerValues& values)
{
    CornerSamples samples;
    for (std::size_t corner = 0; corner < cornerCount; ++corner)
        samples[corner] = {cornerPosition(box, corner), values[corner]};
    return samples;
}

bool reachedByABall(std::span<const Metaball> balls, const BoundingBox& box)
{
    return std::ranges::any_of(balls,
                               [&](const Metaball& ball) { return box.intersects(ball.bounds); });
}

} // namespace

void MetaballSurface::subdivide(OctreeNode& node, const CornerValues& values, std::uint32_t depth,
                                std::uint8_t caseIndex, std::uint8_t visibility)
{
    if (depth == octree.maxDepth) {
        if (caseIndex != allOutside)
            polygonizeLeaf(cornerSamples(node.bounds, values), caseIndex);
        return;
    }

    // One box for every cell tested: which plane rejected the last one is worth knowing.
    static constinit BoundingBox testedBox;

    const GridLines lines = gridLines(node.bounds);
    const Grid grid = sampleGrid(allBalls(), lines, values);
    for (std::size_t k = 0; k < cornerCount; ++k) {
        const CornerValues childValues = childCorners(grid, k);
        const std::uint8_t childCase = caseIndexOf(childValues, threshold);
        if (childCase == allInside)
            continue;
        testedBox.copyExtent(childBox(lines, k));
        const std::uint8_t childVisibility = viewFrustum.classifyBox(testedBox, visibility);
        // Where all corners are outside, a small ball may still lie between them.
        if (childVisibility == 0 || !reachedByABall(allBalls(), testedBox))
            continue;
        OctreeNode* const child = nodePool.take();
        node.children[k] = child;
        child->bounds.copyExtent(testedBox);
        child->children.fill(nullptr);
        subdivide(*child, childValues, depth + 1, childCase, childVisibility);
    }
}

void MetaballSurface::polygonizeLeaf(const CornerSamples& samples, std::uint8_t caseIndex) const
{
    const std::uint32_t crossed = edgeTable[caseIndex];
    if (crossed == 0)
        return;
    EdgeVertices vertices;
    for (std::size_t edge = 0; edge < edgeCount; ++edge) {
        if ((crossed >> edge & 1u) == 0)
            continue;
        const CornerSample& from = samples[edgeCorners[edge].from];
        const CornerSample& to = samples[edgeCorners[edge].to];
        EdgeVertex& vertex = vertices[edge];
        float value = 0.0f;
        interpolateEdge(from.position, to.position, from.value, to.value, vertex.position, value);
        const Vec3 texCoord = surfaceTexCoord(vertex.position, value);
        vertex.s = texCoord.x;
        vertex.t = texCoord.y;
    }
    drawLeaf(vertices, caseIndex);
}

void MetaballSurface::interpolateEdge(const Vec3& pa, const Vec3& pb, float va, float vb,
                                      Vec3& outVertex, float& outValue) const
{
    const float mu = (threshold - va) / (vb - va);
    outVertex = pa + (pb - pa) * mu;
    outValue = fieldAt(outVertex);
}
