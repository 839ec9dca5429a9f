#include "vela/geometry.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(Geometry, RectanglesAtTheLimitsStopThere)
{
    constexpr std::int32_t kMax = INT32_MAX;
    constexpr std::int32_t kMin = INT32_MIN;
    EXPECT_EQ(united({0, 0, 10, 10}, {20, 5, 5, 30}), (Rect{0, 0, 25, 35}));
    EXPECT_EQ(united({kMin, 0, 1, 1}, {kMax, 0, 1, 1}), (Rect{kMin, 0, kMax, 1}));
    EXPECT_EQ(movedBy({kMax, kMin, 5, 5}, {1, -1}), (Rect{kMax, kMin, 5, 5}));
    EXPECT_EQ(grownBy({kMin, 0, kMax, 10}, 3), (Rect{kMin, -3, kMax, 16}));
}

} // namespace
} // namespace vela
