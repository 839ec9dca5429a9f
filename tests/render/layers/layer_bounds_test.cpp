#include "vela/render/layers/layer_bounds.h"

#include <gtest/gtest.h>

#include <vector>

namespace vela {
namespace {

// Whatever a layer draws lies in exactly one part, and the frame of a shadow leaves the middle out.
TEST(LayerBounds, TogetherHoldAllThatTheLayerDraws)
{
    for (const Size size : {Size{1, 1}, Size{30, 20}, Size{240, 90}, Size{90, 241}, Size{301, 180}}) {
        for (const ShapeKind shape : {ShapeKind::Rect, ShapeKind::RoundedRect, ShapeKind::Hexagon}) {
            for (const std::int32_t depth : {1, 7, 34, 200}) {
                SurfaceStyle style;
                style.shape = shape;
                style.innerShadow = 255;
                style.innerShadowSize = depth;
                const Coverage coverage(shape, size);
                const PaintStep step{SurfaceLayer::InnerShadow, {0, 0, size.width, size.height}};
                std::vector<Pixel> pixels(static_cast<std::size_t>(size.width * size.height));
                fillLayer({{pixels.data(), size, size.width}, {0, 0}}, coverage, step, style, {});
                std::vector<int> parts(pixels.size());
                for (const Rect& part : layerBounds(step, coverage, style))
                    for (std::int32_t y = part.y; y < part.y + part.height; ++y)
                        for (std::int32_t x = part.x; x < part.x + part.width; ++x)
                            ++parts.at(static_cast<std::size_t>(y * size.width + x));
                for (std::size_t i = 0; i < pixels.size(); ++i)
                    ASSERT_TRUE(parts[i] == 1 || (parts[i] == 0 && pixels[i] == 0))
                        << size.width << 'x' << size.height << " depth " << depth << " at " << i;
            }
        }
    }
    const PaintStep step{SurfaceLayer::InnerShadow, {0, 0, 690, 420}};
    SurfaceStyle style;
    std::int64_t area = 0;
    for (const Rect& part : layerBounds(step, Coverage(ShapeKind::Rect, {690, 420}), style))
        area += std::int64_t{part.width} * part.height;
    EXPECT_LT(area, 690 * 420 / 10);
}

} // namespace
} // namespace vela
