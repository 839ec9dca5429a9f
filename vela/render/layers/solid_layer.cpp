#include "vela/render/layers/solid_layer.h"

#include "vela/render/shapes/antialias.h"
#include "vela/render/shapes/shape_rects.h"

namespace vela {

void fillSolid(const LayerTarget& target, const Coverage& coverage, Color color, std::uint8_t alpha)
{
    const Pixel pixel = premultiplied(color, alpha);
    // Whole rows lie one behind the other: they are filled as one.
    Pixel* begin = nullptr;
    std::ptrdiff_t count = 0;
    paintCovered(target, coverage, [&](Pixel* first, Span run, std::int32_t) {
        if (first != begin + count) {
            simd::fillPixels(begin, count, pixel);
            begin = first;
            count = 0;
        }
        count += run.length();
    });
    simd::fillPixels(begin, count, pixel);
}

void fillStroke(const LayerTarget& target, const Coverage& coverage, Color color, std::int32_t penWidth)
{
    const Size size = coverage.size();
    if (!coverage.isCut())
        return fillDownTo(target, coverage.shape(), {0, 0, size.width, size.height},
                          static_cast<float>(penWidth), color);
    clearLayer(target);
    const Pixel pixel = premultiplied(color, 255);
    visitStroke(coverage.shape(), size, penWidth, target.visible(), [&](const Rect& rect) {
        const LayerTarget part = target.part(rect);
        for (std::int32_t y = 0; y < rect.height; ++y)
            simd::fillPixels(part.view.row(y), rect.width, pixel);
    });
}

} // namespace vela
