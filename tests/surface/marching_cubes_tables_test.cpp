#include "surface/marching_cubes_tables.h"

#include <gtest/gtest.h>

TEST(MarchingCubesTables, AreThePublishedOnes)
{
    // FNV-1a over the 4096 numbers, taken from the table as it is published.
    std::uint32_t hash = 2166136261u;
    for (std::size_t index = 0; index < triTable.size(); ++index) {
        std::uint32_t used = 0;
        for (const std::int32_t edge : triTable[index]) {
            hash = (hash ^ static_cast<std::uint8_t>(edge)) * 16777619u;
            used |= edge < 0 ? 0 : 1u << edge;
        }
        EXPECT_EQ(edgeTable[index], used) << index;
    }
    EXPECT_EQ(hash, 0xb5361605u);
}
