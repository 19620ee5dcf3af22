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

/// What the last frame visited. Its nodes belong to the `nodePool`.
struct Octree {
    std::uint32_t maxDepth = 3;
    OctreeNode* root = nullptr;
};

/// The nodes of a frame, reused by the next one.
class NodePool {
public:
    /// Makes room for `newCapacity` nodes and forgets those there were. No memory is `Cexception`.
    void resize(std::uint32_t newCapacity);

    /// Hands out from the first node again.
    void reset() { next = 0; }

    /// The next node, as its last user left it. After the last node comes the first again, so a
    /// tree of more nodes than `size` overwrites its own: what a visit needs of its node it must
    /// read before it takes another. The size must not be 0.
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
