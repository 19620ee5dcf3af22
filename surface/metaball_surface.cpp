#include "surface/metaball_surface.h"

#include "surface/edge_crossing.h"
#include "surface/frustum.h"
#include "surface/metaball_field.h"
#include "surface/view_frustum.h"
#include "zrk/allocation.h"
#include "zrk/shaders/shader.h"

namespace {

constexpr std::uint32_t firstBallCount = 25;
constexpr float firstBallRadius = 400.0f; // world units

} // namespace

MetaballSurface::MetaballSurface()
{
    setBallCount(firstBallCount);
}

void MetaballSurface::setBallCount(std::uint32_t count)
{
    ballCount = 0; // holds if there is no memory for the new balls
    balls.reset(); // before the new ones are made, so that both need not fit
    balls = zrk::newArray<Metaball>(count);
    ballCount = count;
    for (std::uint32_t i = 0; i < count; ++i)
        balls[i].set(Vec3(), firstBallRadius);
}

float MetaballSurface::fieldAt(const Vec3& p) const
{
    return ::fieldAt(allBalls(), p);
}

Vec3 MetaballSurface::surfaceTexCoord(const Vec3& p, float valueAtP) const
{
    return ::surfaceTexCoord(allBalls(), p, valueAtP);
}

void MetaballSurface::interpolateEdge(const Vec3& pa, const Vec3& pb, float va, float vb,
                                      Vec3& outVertex, float& outValue) const
{
    outVertex = crossingBetween(pa, pb, va, vb, threshold);
    outValue = fieldAt(outVertex);
}

void MetaballSurface::polygonizeAndDraw()
{
    const std::uint8_t visibility = viewFrustum.classifyBox(region, 0);
    if (visibility == 0)
        return;

    // Every node of the last frame is given up here: the tree is built anew.
    if (nodePool.size() != nodePoolSize)
        nodePool.resize(nodePoolSize);
    nodePool.reset();
    octree.maxDepth = depthSetting;
    octree.root = nodePool.take();
    octree.root->bounds.copyExtent(region);
    octree.root->children.fill(nullptr);

    CornerValues values;
    for (std::size_t corner = 0; corner < cornerCount; ++corner)
        values[corner] = fieldAt(cornerPosition(region, corner));

    shader->apply();
    syncBounds(); // before the first cell is tested against them
    polygonizer.begin(allBalls(), region, octree.maxDepth, threshold);
    subdivide(*octree.root, values, 0, caseIndexOf(values, threshold), visibility);
}

void MetaballSurface::subdivide(OctreeNode& node, const CornerValues& values, std::uint32_t depth,
                                std::uint8_t caseIndex, std::uint8_t visibility)
{
    polygonizer.subdivide(node, values, depth, caseIndex, visibility);
}

void MetaballSurface::polygonizeLeaf(const CornerSamples& samples, std::uint8_t caseIndex)
{
    polygonizer.polygonizeLeaf(samples, caseIndex);
}

void MetaballSurface::syncBounds()
{
    for (std::uint32_t i = 0; i < ballCount; ++i)
        balls[i].syncBounds();
}

bool MetaballSurface::query(std::int32_t /*argument*/)
{
    return true;
}

void MetaballSurface::draw()
{
    polygonizeAndDraw();
}

std::int32_t MetaballSurface::kind()
{
    return 6;
}

void MetaballSurface::rebuild() {}
