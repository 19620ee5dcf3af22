#include "surface/marching_cubes_tables.h"

#include <gtest/gtest.h>
#include <vector>

TEST(MarchingCubesTables, EdgesAreThePublishedOnes)
{
    const std::vector<std::uint32_t> first(edgeTable.begin(), edgeTable.begin() + 9);
    const std::vector<std::uint32_t> expected{0x0,   0x109, 0x203, 0x30a, 0x406,
                                              0x50f, 0x605, 0x70c, 0x80c};
    EXPECT_EQ(first, expected);
    EXPECT_EQ(edgeTable[255], 0u);
}

TEST(MarchingCubesTables, EveryCrossedEdgeIsInATriangleAndNoOther)
{
    int triangles = 0;
    for (std::size_t index = 0; index < triTable.size(); ++index) {
        std::uint32_t used = 0;
        int corners = 0;
        for (; triTable[index][static_cast<std::size_t>(corners)] >= 0; ++corners)
            used |= 1u << triTable[index][static_cast<std::size_t>(corners)];
        EXPECT_EQ(used, edgeTable[index]) << index;
        EXPECT_EQ(corners % 3, 0) << index;
        triangles += corners / 3;
    }
    EXPECT_EQ(triangles, 820);
}

TEST(MarchingCubesTables, TrianglesAreThePublishedOnes)
{
    // FNV-1a over the 4096 numbers, taken from the table as it is published.
    std::uint32_t hash = 2166136261u;
    for (const auto& row : triTable)
        for (const std::int32_t edge : row)
            hash = (hash ^ static_cast<std::uint8_t>(edge)) * 16777619u;
    EXPECT_EQ(hash, 0xb5361605u);
}
