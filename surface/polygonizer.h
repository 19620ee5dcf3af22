#pragma once

#include "surface/bounding_box.h"
#include "surface/cell.h"
#include "surface/leaf_batch.h"
#include "surface/nearby_balls.h"
#include "surface/octree.h"

#include <cstdint>
#include <span>

struct Metaball;

/// Turns the level set of a field into triangles: marching cubes on the leaves of an octree, whose
/// cells are dropped as early as possible. A cell is not visited when all its corners lie inside,
/// when it is out of view, when no ball's bounds meet it, or when its corners all lie outside and
/// an upper bound of the field in it stays below the threshold.
///
/// It owns the scratch that this takes, so that a frame allocates nothing, and can be used for one
/// frame at a time only.
class Polygonizer {
public:
    /// Begins a frame, before the other functions. The balls' bounds must be in step with them.
    /// Without memory for the lists of balls it throws `Cexception`.
    void begin(std::span<const Metaball> balls, const BoundingBox& region,
               std::uint32_t newMaxDepth, float newThreshold);

    /// Visits the cell of `node`, `depth` halvings below the region: a leaf is drawn, any other
    /// cell visits its octants. `values` are the field at the cell's corners and `caseIndex` is
    /// theirs; `visibility` is the mask that the frustum test gave for the cell.
    void subdivide(OctreeNode& node, const CornerValues& values, std::uint32_t depth,
                   std::uint8_t caseIndex, std::uint8_t visibility);

    /// Draws the triangles of a leaf cell by itself, if it has any.
    void polygonizeLeaf(const CornerSamples& samples, std::uint8_t caseIndex);

private:
    std::uint32_t maxDepth = 0;
    float threshold = 0.0f;
    NearbyBalls nearbyBalls;

    /// The cell whose octants are tested against the frustum: one box for all cells and frames, so
    /// that the plane that rejected an octant last is tested first.
    BoundingBox testedBox;
    CornerSamples leafSamples; ///< Of a region that is itself a leaf.
    LeafBatch leafBatch;
};
