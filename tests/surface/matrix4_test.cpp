#include "surface/matrix4.h"

#include <gtest/gtest.h>

TEST(Matrix4, MultipliesInPlaceByTheMapThatIsDoneFirst)
{
    Matrix4 map = Matrix4::fromRows({2, 0, 0}, {0, 3, 0}, {0, 0, 4});
    map *= Matrix4::translation(1, 2, 3);
    EXPECT_EQ(map.elements,
              (std::array<float, 16>{2, 0, 0, 2, 0, 3, 0, 6, 0, 0, 4, 12, 0, 0, 0, 1}));
}
