#include "vela/render/pixels/surface_mapping.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(SurfaceMapping, FoldsTexturesBackAndForthInTheWindow)
{
    SurfaceMapping mapping;
    mapping.uvScale = 10;
    mapping.uvOffsetX = 3;
    mapping.uvOffsetY = -7;
    EXPECT_EQ(mapSurfacePoint(mapping, {100, 100}, 4, 5), (MappedPoint{{4, 5}, {4, 5}}));
    mapping.uvMapping = MappingSpace::Global;
    const struct {
        Point origin;
        MappedPoint mapped; // of the pixel 4, 5
    } rows[] = {
        {{0, 0}, {{7, -2}, {7, 2}}},    {{3, 12}, {{10, 10}, {10, 10}}},   {{4, 13}, {{11, 11}, {9, 9}}},
        {{13, 22}, {{20, 20}, {0, 0}}}, {{-28, -9}, {{-21, -11}, {1, 9}}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(mapSurfacePoint(mapping, row.origin, 4, 5), row.mapped);
    mapping.uvScale = 0; // the smallest tile is 8
    EXPECT_EQ(mapSurfacePoint(mapping, {6, 7}, 0, 0).texture, (Point{7, 0}));
}

} // namespace
} // namespace vela
