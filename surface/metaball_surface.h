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

/// The surface on which the field of the metaballs equals a threshold, made anew every frame and
/// sent to OpenGL as it is made. Inside is where the field is not below the threshold.
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

    /// Has 25 balls.
    MetaballSurface();

    /// Puts `count` balls of radius 400 at the origin in the place of those there were. No memory
    /// is `Cexception`.
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

    /// Makes the bounds of every ball follow it; `polygonizeAndDraw` does so in every frame.
    void syncBounds();

    /// Draws the part of the surface that the `viewFrustum` may see. The `shader` must be set, a
    /// context be current and hold the matrices that the frustum was made of. A region out of view
    /// makes no call of OpenGL.
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

    /// Does nothing: nothing is kept from frame to frame.
    void rebuild() override;

private:
    Polygonizer polygonizer;

    std::span<const Metaball> allBalls() const { return {balls.get(), ballCount}; }
};

/// The one surface of the program.
extern MetaballSurface metaballSurface;
