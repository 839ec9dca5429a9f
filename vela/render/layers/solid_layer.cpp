#include "vela/render/layers/solid_layer.h"

namespace vela {

void fillSolid(const LayerTarget& target, const Coverage& coverage, Color color, std::uint8_t alpha)
{
    const Pixel pixel = premultiplied(color, alpha);
    paintCovered(target, coverage, [pixel](Pixel* first, Span run, std::int32_t) {
        simd::fillPixels(first, run.length(), pixel);
    });
}

} // namespace vela
