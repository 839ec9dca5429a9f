#include "vela/render/surface/surface_painter.h"

#include "vela/render/bitmaps/bitmap_geometry.h"
#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/render/bitmaps/surface_outline.h"
#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/gdi/pixel_layer_gdi.h"
#include "vela/render/layers/layer_bounds.h"
#include "vela/render/layers/paint_plan.h"
#include "vela/render/materials/material_clock.h"
#include "vela/render/materials/material_gpu_d3d11.h"
#include "vela/render/materials/material_overlay_gdi.h"
#include "vela/render/materials/material_source_gdi.h"
#include "vela/render/pixels/blend.h"
#include "vela/render/shapes/antialias.h"
#include "vela/render/surface/face_key.h"
#include "vela/render/surface/face_picture.h"
#include "vela/render/surface/surface_shape.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

namespace vela {
namespace {

using Steps = std::span<const PaintStep>;

// Larger faces are composed as far as they are seen, each time.
constexpr std::int64_t kMostStoredPixels = 10'000'000;

bool isMaterial(const PaintStep& step) noexcept { return step.layer == SurfaceLayer::Material; }

// One surface while it is painted.
class SurfacePaint {
public:
    SurfacePaint(HDC dc, const Rect& rect, const SurfaceStyle& style, SurfaceEdge edge)
        : dc_(dc), rect_(rect), style_(style), bitmaps_(surfaceBitmaps(style)),
          // A bitmap's outline has antialiased edges of its own.
          isShape_(coverageOf(sizeOf(rect)).isShape()),
          plan_(paintPlan(style, rect, clipBox(dc), bitmapCover(), isShape_ ? edge : SurfaceEdge::Exact))
    {
    }

    void paintHalo(const Rect& face) const;
    // As far as `end`, a number of pixels.
    void paintFace(float end) const;

private:
    bool isCut() const noexcept
    {
        return !plan_.face().empty() && plan_.face().back().layer == SurfaceLayer::Cut;
    }
    Steps layers() const noexcept
    {
        return plan_.face().first(plan_.face().size() - static_cast<std::size_t>(isCut()));
    }
    BitmapCover bitmapCover() const noexcept
    {
        if (!bitmaps_.skin)
            return BitmapCover::None;
        const Size size = sizeOf(rect_);
        return coverOn(*bitmaps_.skin, bitmapPlacement(style_, size), size);
    }
    Coverage coverageOf(Size size) const { return surfaceCoverage(style_, size, bitmaps_); }
    // What of the rectangle hides all that was there before.
    Rect solidPart() const
    {
        const SurfaceEdge edge = isCut() ? SurfaceEdge::Antialiased : SurfaceEdge::Exact;
        return plan_.isOpaque() && isShape_
                   ? movedBy(solidBox(style_.shape, sizeOf(rect_), edge), {rect_.x, rect_.y})
                   : Rect{};
    }
    void paintPlain(Steps steps) const;
    void composeLayers(const LayerTarget& target) const;
    std::shared_ptr<OwnedPixels> storedPicture(Steps steps, const FaceSource& source) const;
    void addPicture(const LayerTarget& target, Steps steps, const FaceSource& source, Beneath beneath) const;

    HDC dc_;
    Rect rect_;
    const SurfaceStyle& style_;
    LoadedBitmaps bitmaps_;
    bool isShape_; // its outline is
    PaintPlan plan_;
};

void SurfacePaint::paintHalo(const Rect& face) const
{
    const Rect hidden = face == rect_ ? solidPart() : Rect{};
    for (PaintStep step : plan_.halo()) {
        step.rect.width -= rect_.width - face.width;
        const Coverage coverage = coverageOf(sizeOf(step.rect));
        for (const Rect& part : haloBounds(step, hidden))
            renderPixelLayer(dc_, step.rect, part, [&](const LayerTarget& target) {
                fillLayer(target, coverage, step, style_, {});
            });
    }
}

// One colour over another needs no picture.
void SurfacePaint::paintPlain(Steps steps) const
{
    for (const PaintStep& step : steps) {
        if (step.layer == SurfaceLayer::Fill)
            render::fillShape(dc_, rect_, style_.shape, step.color);
        else
            render::strokeShapeOutline(dc_, rect_, style_.shape, step.color, step.penWidth);
    }
}

void SurfacePaint::paintFace(float end) const
{
    if (plan_.face().empty())
        return;
    const bool isWhole = end >= static_cast<float>(rect_.width);
    const Steps steps = layers();
    if (isWhole && !isCut() && std::all_of(steps.begin(), steps.end(), [](const PaintStep& step) {
            return isPlainLayer(step.layer);
        }))
        return paintPlain(steps);
    const auto width = static_cast<std::int32_t>(std::ceil(end));
    const Rect visible = visiblePart(dc_, {rect_.x, rect_.y, std::min(rect_.width, width), rect_.height});
    const PixelView pixels = scratchPixels(sizeOf(visible));
    if (!pixels.pixels)
        return;
    const LayerTarget target{pixels, {visible.x - rect_.x, visible.y - rect_.y}};
    composeLayers(target);
    const Rect whole{0, 0, rect_.width, rect_.height};
    if (isCut())
        cutToShape(target, style_.shape, whole);
    if (!isWhole)
        cutToProgress(target, style_.shape, whole, end);
    compositeScratch(dc_, visible, isWhole ? solidPart() : Rect{});
}

// A light that moves changes the material alone: what lies beneath it and above it are pictures of their own.
// With a reduced profile it rests.
void SurfacePaint::composeLayers(const LayerTarget& target) const
{
    const Steps steps = layers();
    std::optional<MaterialSource> material;
    const auto writeMaterial = [&](const LayerTarget& part) {
        if (!material)
            material.emplace(dc_, rect_, style_);
        material->write(part);
    };
    const Size size = sizeOf(rect_);
    const FaceSource source{style_,
                            {rect_.x, rect_.y},
                            isCut() ? Coverage::uncut(style_.shape, size) : coverageOf(size),
                            bitmaps_.skin.get(),
                            writeMaterial};
    if (!hasMovingLight(style_) || paintContext(dc_).profile == PerformanceProfile::Reduced)
        return addPicture(target, steps, source, Beneath::Nothing);
    const auto moving = std::find_if(steps.begin(), steps.end(), isMaterial);
    addPicture(target, {steps.begin(), moving}, source, Beneath::Nothing);
    if (moving == steps.end())
        return;
    composeFace(target, {moving, 1}, source, Beneath::Picture);
    addPicture(target, {moving + 1, steps.end()}, source, Beneath::Picture);
}

std::shared_ptr<OwnedPixels> SurfacePaint::storedPicture(Steps steps, const FaceSource& source) const
{
    const PaintContext& context = paintContext(dc_);
    if (!context.cachesPictures || std::int64_t{rect_.width} * rect_.height > kMostStoredPixels)
        return nullptr;
    const bool isGlobal = style_.uvMapping == MappingSpace::Global;
    const FaceKeyValues values{bitmaps_,
                               sizeOf(rect_),
                               isGlobal ? source.origin : Point{},
                               context.profile,
                               isCut() ? SurfaceEdge::Antialiased : SurfaceEdge::Exact,
                               steps.front().layer};
    const FaceKeyView key{style_, values};
    PictureStore& store = pictureStore();
    // Materials take so long that they are rendered once, whoever may want them again.
    const bool hasMaterial = std::any_of(steps.begin(), steps.end(), isMaterial);
    if (auto known = store.find<FacePictures>(key);
        known || (!hasMaterial && !store.isWantedAgain<FacePictures>(key)))
        return known;
    return store.ensure<FacePictures>(key, [&] {
        auto whole = std::make_shared<OwnedPixels>(sizeOf(rect_));
        composeFace({whole->view(), {}}, steps, source, Beneath::Nothing);
        return whole;
    });
}

// The same pixels, whether the picture is stored or not.
void SurfacePaint::addPicture(const LayerTarget& target, Steps steps, const FaceSource& source,
                              Beneath beneath) const
{
    if (steps.empty())
        return beneath == Beneath::Nothing ? clearLayer(target) : void();
    const auto stored = storedPicture(steps, source);
    if (stored && beneath == Beneath::Nothing)
        return copyPixels(LayerTarget{stored->view(), {}}.part(target.visible()).view, target.view);
    if (beneath == Beneath::Nothing)
        return composeFace(target, steps, source, beneath);
    if (stored)
        return blendOver(LayerTarget{stored->view(), {}}.part(target.visible()).view, target.view);
    OwnedPixels seen(target.view.size);
    composeFace({seen.view(), target.origin}, steps, source, Beneath::Nothing);
    blendOver(seen.view(), target.view);
}

void paint(HDC dc, const Rect& rect, const SurfaceStyle& style, SurfaceEdge edge)
{
    if (!isVisible(dc, rect))
        return; // before any bitmap is loaded for it
    const SurfacePaint surface(dc, rect, style, edge);
    surface.paintHalo(rect);
    surface.paintFace(static_cast<float>(rect.width));
}

void drawLayer(HDC dc, SurfaceLayer layer, const Rect& rect, const SurfaceStyle& style)
{
    const LoadedBitmaps bitmaps = surfaceBitmaps(style);
    const Coverage coverage = surfaceCoverage(style, sizeOf(rect), bitmaps);
    const PaintStep step{layer, rect};
    for (const Rect& part : layerBounds(step, coverage, style))
        renderPixelLayer(dc, rect, part, [&](const LayerTarget& target) {
            fillLayer(target, coverage, step, style, {rect.x, rect.y});
        });
}

} // namespace

void render::paintSurface(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    paint(dc, rect, style, SurfaceEdge::Exact);
}

void render::paintControlSurface(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    paint(dc, rect, style, SurfaceEdge::Antialiased);
}

void render::paintProgressFill(HDC dc, const Rect& track, const SurfaceStyle& fill, float end)
{
    const float reach = std::clamp(end, 0.0F, static_cast<float>(std::max(track.width, 0)));
    const Rect filled{track.x, track.y, static_cast<std::int32_t>(std::ceil(reach)), track.height};
    if (!isVisible(dc, track) || isEmpty(filled))
        return;
    const SurfacePaint surface(dc, track, fill, SurfaceEdge::Antialiased);
    surface.paintHalo(filled);
    surface.paintFace(reach);
}

bool render::isOnSurface(const SurfaceStyle& style, ShapeKind hitShape, Size size, Point point)
{
    const LoadedBitmaps bitmaps = surfaceBitmaps(style);
    return hitSurface(style, hitShape, size, point, bitmaps.view());
}

Rect render::surfaceRoom(const SurfaceStyle& style, const Rect& surface, PartInsets part)
{
    const bool mayHaveOutline = style.geometry && !isEmpty(surface);
    return roomOn(style, surface, part,
                  mayHaveOutline ? surfaceOutline(style, sizeOf(surface), surfaceBitmaps(style)) : nullptr);
}

void drawGradientShape(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    drawLayer(dc, SurfaceLayer::Gradient, rect, style);
}

void drawMaterialOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    if (carriesMaterial(style) && isVisible(dc, rect) && !tryDrawMaterialOverlayHlsl(dc, rect, style))
        drawSoftwareMaterialOverlay(dc, rect, style);
}

void drawSpatialSurfaceShading(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    drawLayer(dc, SurfaceLayer::SpatialShading, rect, style);
}

void drawInnerShadow(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    drawLayer(dc, SurfaceLayer::InnerShadow, rect, style);
}

void drawNoise(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    drawLayer(dc, SurfaceLayer::Noise, rect, style);
}

} // namespace vela
