#include "vela/render/surface/face_picture.h"

#include "vela/render/layers/layer_bounds.h"
#include "vela/render/pixels/blend.h"

namespace vela {
namespace {

// A layer is made in bands that stay in the processor's cache until they are blended.
constexpr std::int32_t kBandPixels = 65'536;

PixelBuffer& bandPixels()
{
    static PixelBuffer buffer;
    return buffer;
}

// Plain layers follow the shape even where a bitmap's alpha is the outline of all others.
Coverage coverageOf(const PaintStep& step, const FaceSource& source)
{
    return isPlainLayer(step.layer) && !source.coverage.isShape()
               ? Coverage(source.style.shape, source.coverage.size())
               : source.coverage;
}

void writeMaterial(const LayerTarget& target, const FaceSource& source)
{
    source.writeMaterial(target);
    clearUncovered(target, source.coverage);
}

void writeLayer(const LayerTarget& target, const PaintStep& step, const FaceSource& source)
{
    const SurfaceStyle& style = source.style;
    switch (step.layer) {
    case SurfaceLayer::Bitmap:
        return fillBitmap(target, source.coverage, *source.bitmap,
                          bitmapPlacement(style, source.coverage.size()));
    case SurfaceLayer::Material: return writeMaterial(target, source);
    default: return fillLayer(target, coverageOf(step, source), step, style, source.origin);
    }
}

} // namespace

void composeLayer(const LayerTarget& picture, const Rect& part,
                  const std::function<void(const LayerTarget&)>& write)
{
    const Rect seen = intersection(part, picture.visible());
    if (isEmpty(seen))
        return;
    const std::int32_t rows = std::max(kBandPixels / seen.width, 1);
    for (std::int32_t y = 0; y < seen.height; y += rows) {
        const Rect band{seen.x, seen.y + y, seen.width, std::min(rows, seen.height - y)};
        const PixelView layer = bandPixels().ensure(sizeOf(band));
        write({layer, {band.x, band.y}});
        blendOver(layer, picture.part(band).view);
    }
}

void composeFace(const LayerTarget& picture, std::span<const PaintStep> steps, const FaceSource& source,
                 Beneath beneath)
{
    if (beneath == Beneath::Nothing) {
        if (steps.empty())
            return clearLayer(picture);
        writeLayer(picture, steps.front(),
                   source); // a layer writes every pixel, and the first needs no blending
        steps = steps.subspan(1);
    }
    for (const PaintStep& step : steps) {
        for (const Rect& part : layerBounds(step, coverageOf(step, source), source.style))
            composeLayer(picture, part, [&](const LayerTarget& target) { writeLayer(target, step, source); });
    }
}

} // namespace vela
