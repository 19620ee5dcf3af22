#include "surface/octree.h"

#include <gtest/gtest.h>

TEST(NodePool, BeginsAgainAfterItsLastNode)
{
    NodePool pool;
    pool.resize(2);
    OctreeNode* const first = pool.take();
    OctreeNode* const second = pool.take();
    EXPECT_NE(first, second);
    EXPECT_EQ(pool.take(), first);
    pool.reset();
    EXPECT_EQ(pool.take(), first);
    EXPECT_EQ(pool.take(), second);
}

TEST(BoundingBox, KeepsItsCullingPlaneWhenItMoves)
{
    BoundingBox box;
    box.lastCullingPlane = 4;
    box.copyExtent(BoundingBox(Vec3(1), Vec3(2)));
    EXPECT_EQ(box.max().z, 2);
    EXPECT_EQ(box.lastCullingPlane, 4);
}
