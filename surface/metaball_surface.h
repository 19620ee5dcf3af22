#pragma once

#include "surface/bounding_box.h"
#include "surface/cell.h"
#include "surface/drawable.h"
#include "surface/metaball.h"
#include "surface/octree.h"
#include "surface/polygonizer.h"

#include <cstdint>
#include <memory>
#include <span>

namespace zrk {
class Shader;
}

/// The isosurface of the metaballs' field at `threshold`, polygonised afresh every frame and sent
/// to OpenGL as its triangles are found. Inside is where the field is not below the threshold.
class MetaballSurface : public Drawable {
public:
    std::uint32_t nodePoolSize = 50000; ///< A tree of depth 5 has at most 37,449 nodes.
    Octree octree;
    const zrk::Shader* shader = nullptr; ///< What the next frame is drawn with; borrowed.
    std::unique_ptr<Metaball[]> balls;
    BoundingBox region{Vec3(-300.0f), Vec3(300.0f)}; ///< The root cell, in world space.
    std::uint32_t depthSetting = 4;                  ///< How often the region is halved.
    float threshold = 0.5f;
    std::uint32_t ballCount = 0;

    /// Makes 25 balls, see `setBallCount`.
    MetaballSurface();

    /// Replaces all balls by `count` balls of radius 400 at the origin. Without memory it throws
    /// `Cexception` and leaves none.
    void setBallCount(std::uint32_t count);

    /// The field of all balls at a point in world space.
    float fieldAt(const Vec3& p) const;

    /// The texture coordinate (x, y) of a point on the surface, given the field there; z is that of
    /// the outward unit vector.
    Vec3 surfaceTexCoord(const Vec3& p, float valueAtP) const;

    /// Where the surface crosses the edge from `pa` to `pb`, on whose ends the field is `va` and
    /// `vb`, one of them below the threshold; and the field there.
    void interpolateEdge(const Vec3& pa, const Vec3& pb, float va, float vb, Vec3& outVertex,
                         float& outValue) const;

    /// Brings the bounds of all balls in step with them; `polygonizeAndDraw` does so every frame.
    void syncBounds();

    /// Draws the part of the surface that `viewFrustum` lets through. `shader` must be set, and the
    /// current context must hold the matrices that the frustum was made from. If the whole region
    /// is out of view, no OpenGL function is called. Memory is allocated in the first frame and
    /// after a change of sizes only; without it `Cexception` is thrown.
    void polygonizeAndDraw();

    /// Visits the cell of `node` and what lies below it, see `Polygonizer::subdivide`. For
    /// `polygonizeAndDraw`, which begins the frame.
    void subdivide(OctreeNode& node, const CornerValues& values, std::uint32_t depth,
                   std::uint8_t caseIndex, std::uint8_t visibility);

    /// Draws the triangles of one leaf cell of the frame begun last, if it has any.
    void polygonizeLeaf(const CornerSamples& samples, std::uint8_t caseIndex);

    bool query(std::int32_t argument) override;

    /// The same as `polygonizeAndDraw`.
    void draw() override;
    std::int32_t kind() override;

    /// Does nothing: no geometry is kept from frame to frame.
    void rebuild() override;

private:
    Polygonizer polygonizer;

    std::span<const Metaball> allBalls() const { return {balls.get(), ballCount}; }
};

/// The one surface of the program.
extern MetaballSurface metaballSurface;
