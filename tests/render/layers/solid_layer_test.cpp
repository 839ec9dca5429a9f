#include "vela/render/layers/solid_layer.h"

#include "tests/render/layers/layer_testing.h"

namespace vela {
namespace {

TEST(SolidLayer, IsOnePremultipliedColourWithinTheShape)
{
    forEveryShape([](ShapeKind shape, const LayerCase& layer) {
        const Picture picture = drawLayer(layer.visible, [&](const LayerTarget& target) {
            fillSolid(target, {shape, layer.size}, hexColor(0xFF8001), 100);
        });
        EXPECT_TRUE(matches(picture, layer.visible, 0, [&](std::int32_t x, std::int32_t y) {
            return covers(shape, layer.size, x, y) ? 0x64643200U
                                                   : 0U; // 255, 128 and 1 times 100/255, rounded down
        }));
    });
}

TEST(SolidLayer, FollowsEveryRunOfAMask)
{
    RunMask mask({6, 3});
    mask.addRun({0, 1});
    mask.addRun({3, 5});
    mask.endRow();
    mask.endRow();
    mask.addRun({2, 6});
    mask.endRow();
    const Picture picture = drawLayer({1, 0, 4, 3}, [&](const LayerTarget& target) {
        fillSolid(target, Coverage(mask), hexColor(0xFFFFFF), 255);
    });
    const Pixel o = 0, w = 0xFFFFFFFF;
    EXPECT_EQ(picture.pixels, (std::vector<Pixel>{o, o, w, w, o, o, o, o, o, w, w, w}));
}

} // namespace
} // namespace vela
