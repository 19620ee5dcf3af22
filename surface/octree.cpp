#include "surface/octree.h"

#include "zrk/allocation.h"

constinit NodePool nodePool;

void NodePool::resize(std::uint32_t newCapacity)
{
    next = 0;
    capacity = 0; // holds if there is no memory for the new nodes
    nodes.reset();
    nodes = zrk::newArray<OctreeNode>(newCapacity);
    capacity = newCapacity;
}
