#include "vela/render/surface/control_painter.h"

#include "vela/mul_div.h"
#include "vela/render/gdi/dib_gdi.h"
#include "vela/render/gdi/picture_cache_gdi.h"
#include "vela/render/gdi/pixel_layer_gdi.h"
#include "vela/render/materials/material_clock.h"
#include "vela/render/shapes/antialias.h"
#include "vela/render/surface/focus_ring.h"
#include "vela/render/surface/surface_key.h"
#include "vela/render/surface/surface_painter.h"

#include <algorithm>
#include <cmath>
#include <deque>

namespace vela::render {
namespace {

// GDI leaves the alpha of what it draws undefined.
void makeOpaque(const PixelView& pixels)
{
    for (std::int32_t y = 0; y < pixels.size.height; ++y)
        std::for_each(pixels.row(y), pixels.row(y) + pixels.size.width,
                      [](Pixel& pixel) { pixel |= 0xFF000000; });
}

// The target's coordinates begin at the rectangle's corner.
template <typename Draw>
void drawAntialiased(HDC dc, const Rect& rect, Draw&& draw)
{
    renderPixelLayer(dc, rect, [&](const LayerTarget& target) {
        draw(target, Rect{0, 0, rect.width, rect.height});
    });
}

// A bitmap to paint on for as long as this lives: to make one takes longer than to paint a button on it.
class Canvas {
public:
    explicit Canvas(Size size) : bitmap_(nextFree()), surface_(bitmap_.ensure(size)) {}
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas()
    {
        bitmap_.release();
        --used_;
    }

    const DibSurface* surface() const noexcept { return surface_; } // null without memory

private:
    // A progress bar's fill is masked while it is made of surfaces that are masked.
    static ScratchBitmap& nextFree()
    {
        constexpr std::int64_t kMostPixels = 500'000; // 2 MB: any control, not a window
        static std::deque<ScratchBitmap> bitmaps;
        if (used_ == bitmaps.size())
            bitmaps.emplace_back(kMostPixels);
        return bitmaps[used_++];
    }
    static inline std::size_t used_ = 0;

    ScratchBitmap& bitmap_;
    const DibSurface* surface_;
};

// Paints on a copy of what lies under the rectangle and lays back what `mask` leaves of that picture, so that
// hard-edged layers get an antialiased edge.
template <typename Paint, typename Mask>
void paintMasked(HDC dc, const Rect& rect, Paint&& paint, Mask&& mask)
{
    const Rect visible = visiblePart(dc, rect);
    if (isEmpty(visible))
        return;
    const Canvas canvas(sizeOf(visible));
    if (!canvas.surface())
        return;
    const DibSurface& copy = *canvas.surface();
    ::SetViewportOrgEx(copy.dc(), -visible.x, -visible.y, nullptr);
    ::SelectClipRgn(copy.dc(), nullptr);
    ::IntersectClipRect(copy.dc(), visible.x, visible.y, visible.x + visible.width,
                        visible.y + visible.height);
    ::BitBlt(copy.dc(), visible.x, visible.y, visible.width, visible.height, dc, visible.x, visible.y,
             SRCCOPY);
    {
        const PaintContextBinding inherited(copy.dc(), paintContext(dc));
        paint(copy.dc());
    }
    const PixelView all = copy.pixels();
    const PixelView pixels{all.pixels, sizeOf(visible), all.stride};
    makeOpaque(pixels);
    mask(LayerTarget{pixels, {visible.x - rect.x, visible.y - rect.y}});
    compositePixelBuffer(dc, visible, pixels);
}

// Fill or gradient on the whole rectangle, for the mask to find colour up to the very edge.
SurfaceStyle fillLayersOf(const SurfaceStyle& style)
{
    SurfaceStyle fill = style;
    fill.shape = ShapeKind::Rect;
    fill.materialEnabled = fill.drawBorder = fill.showOutline = fill.showGlow = fill.showShadow = false;
    fill.showInnerShadow = fill.useNoise = false;
    fill.materialDepth = 0;
    return fill;
}

SurfaceStyle lightLayersOf(const SurfaceStyle& style)
{
    SurfaceStyle light = style;
    light.drawFill = light.useGradient = light.drawBorder = light.showOutline = light.showGlow =
        light.showShadow = false;
    return light;
}

// What lies around a surface rather than on it.
SurfaceStyle outerLayersOf(const SurfaceStyle& style)
{
    SurfaceStyle outer = style;
    outer.drawFill = outer.useGradient = outer.drawBorder = outer.showOutline = outer.showInnerShadow =
        outer.useNoise = outer.materialEnabled = false;
    outer.materialDepth = 0;
    return outer;
}

// The surface itself, without what lies around it.
void paintFace(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    paintMasked(
        dc, rect,
        [&](HDC copy) {
            paintSurface(copy, rect, fillLayersOf(style));
            paintSurface(copy, rect, lightLayersOf(style));
        },
        [&](const LayerTarget& target) {
            cutToProgress(target, style.shape, {0, 0, rect.width, rect.height},
                          static_cast<float>(rect.width));
        });
    const auto stroke = [&](float width, Color color) {
        drawAntialiased(dc, rect, [&](const LayerTarget& target, const Rect& local) {
            strokeAntialiased(target, style.shape, local, width, color);
        });
    };
    if (style.drawBorder)
        stroke(1.0F, style.border);
    if (style.showOutline)
        stroke(static_cast<float>(style.outlineWidth), style.outline);
}

// A button under the pointer is painted again and again in two or three states.
PictureCache<SurfaceKey>& facePictures()
{
    constexpr std::size_t kMostPixels = 1'000'000; // 4 MB
    static PictureCache<SurfaceKey> pictures(kMostPixels);
    return pictures;
}

} // namespace

void paintIcon(HDC dc, Icon icon, const Rect& box, std::int32_t dpi, Color color)
{
    drawAntialiased(dc, box, [&](const LayerTarget& target, const Rect& local) {
        drawIcon(target, icon, local, dpi, color);
    });
}

void paintFocusRing(HDC dc, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color)
{
    const std::int32_t reach = focusRingReach(dpi);
    const Rect bounds = focusRingBounds(rect, dpi);
    // Everywhere as far from the shape, but square corners stay square.
    const std::int32_t growth = shape == ShapeKind::Rect ? reach : 0;
    const Rect from = grownBy(movedBy(rect, {-bounds.x, -bounds.y}), growth);
    const auto width = static_cast<float>(mulDiv(kFocusRingWidth, dpi, kDesignDpi));
    drawAntialiased(dc, bounds, [&](const LayerTarget& target, const Rect&) {
        strokeAntialiased(target, shape, from, width, color, static_cast<float>(growth - reach));
    });
}

void paintControlFace(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    if (style.image) // a bitmap has its own edges
        return paintSurface(dc, rect, style);
    const Rect area = visiblePart(dc, rect);
    if (isEmpty(area))
        return;
    if (hasMovingLight(style))
        return paintFace(dc, rect, style);
    const PaintContext& context = paintContext(dc);
    const auto paint = [&] {
        const PaintContextBinding whole(dc, withoutCaching(context)); // not its layers as well
        paintFace(dc, rect, style);
        return true;
    };
    paintCached(dc, area, facePictures(),
                SurfaceKeyView{style, LoadedBitmaps(), rect, area, // no image, no bitmaps
                               static_cast<std::uint8_t>(context.profile)},
                paint);
}

void paintControlSurface(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    if (style.image || style.shape == ShapeKind::Rect)
        return paintSurface(dc, rect, style);
    if (style.showShadow || style.showGlow)
        paintSurface(dc, rect, outerLayersOf(style));
    const bool hasFace = style.drawFill || style.useGradient || style.materialEnabled;
    if (hasFace || style.drawBorder || style.showOutline)
        paintControlFace(dc, rect, style);
}

void paintProgressFill(HDC dc, const Rect& track, const SurfaceStyle& fill, float end)
{
    const float reach = std::clamp(end, 0.0F, static_cast<float>(std::max(track.width, 0)));
    const Rect filled{track.x, track.y, static_cast<std::int32_t>(std::ceil(reach)), track.height};
    paintMasked(
        dc, filled, [&](HDC copy) { paintControlSurface(copy, track, fill); },
        [&](const LayerTarget& target) {
            cutToProgress(target, fill.shape, {0, 0, track.width, track.height}, reach);
        });
}

} // namespace vela::render
