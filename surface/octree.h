#pragma once

#include "surface/bounding_box.h"

#include <array>
#include <cassert>
#include <cstdint>
#include <memory>

/// One cell that the current frame visited.
struct OctreeNode {
    /// Child k is the octant that holds corner k; null where it was not visited.
    std::array<OctreeNode*, 8> children{};
    BoundingBox bounds;
};

/// The cells that the last frame visited. The nodes belong to `nodePool`.
struct Octree {
    std::uint32_t maxDepth = 3;
    OctreeNode* root = nullptr;
};

/// An arena for the nodes of one frame, reused by the next one: nodes are not freed one by one.
class NodePool {
public:
    /// Replaces the nodes by `newCapacity` new ones. Without memory it throws `Cexception` and has
    /// none.
    void resize(std::uint32_t newCapacity);

    /// Starts again at the first node.
    void reset() { next = 0; }

    /// The next node, with the contents that its last user left. After the last node the first
    /// follows, so a tree of more than `size` nodes overwrites itself: a visit must read its own
    /// node before it takes another. The size must not be 0.
    OctreeNode* take()
    {
        assert(capacity > 0);
        if (next == capacity)
            next = 0;
        return &nodes[next++];
    }

    std::uint32_t size() const { return capacity; }

private:
    std::uint32_t next = 0;
    std::unique_ptr<OctreeNode[]> nodes;
    std::uint32_t capacity = 0;
};

extern constinit NodePool nodePool;
