#include "vela/render/layers/paint_plan.h"

#include "vela/mul_div.h"

#include "vela/render/layers/gradient.h"
#include "vela/render/layers/inner_shadow.h"
#include "vela/render/layers/noise.h"
#include "vela/render/layers/solid_layer.h"
#include "vela/render/layers/spatial_shading.h"
#include "vela/render/pixels/length_limits.h"

#include <algorithm>

namespace vela {
namespace {

// Collects the layers of one surface, leaving out those that the clip hides.
class Planner {
public:
    Planner(const SurfaceStyle& style, const Rect& rect, const std::optional<Rect>& clip)
        : style_(style), rect_(rect), clip_(clip)
    {
    }

    bool isVisible(const Rect& rect) const noexcept
    {
        return !isEmpty(rect) && (!clip_ || !isEmpty(intersection(rect, *clip_)));
    }
    void add(const PaintStep& step)
    {
        if (isVisible(step.rect))
            plan_.add(step);
    }
    void add(SurfaceLayer layer) { add({layer, rect_}); }

    void addGlow();
    void addShadow();
    void addBase(BitmapCover bitmap);
    void addLight();
    void addCut(SurfaceEdge edge);
    void addStrokes(SurfaceLayer layer, Color color, std::int32_t penWidth)
    {
        add({layer, rect_, color, 255, penWidth});
    }
    void endHalo() { plan_.endHalo(); }
    PaintPlan take() const { return plan_; }

private:
    const SurfaceStyle& style_;
    Rect rect_;
    std::optional<Rect> clip_;
    PaintPlan plan_;
    bool hasBody_ = false; // something for light to fall on
};

// Rings from the outermost inwards. They lie on each other, so the halo is strongest near the surface.
void Planner::addGlow()
{
    if (!style_.showGlow || style_.glowOpacity == 0)
        return;
    const std::int32_t radius = limitedLength(style_.glowRadius);
    const std::int32_t rings = std::min(radius, PaintPlan::kMostGlowRings);
    for (std::int32_t ring = rings; ring >= 1; --ring) {
        const std::int32_t growth = std::max(mulDiv(radius, ring, rings), 1);
        const std::int32_t alpha = std::max((rings - ring + 1) * style_.glowOpacity / (3 * rings), 1);
        add({SurfaceLayer::Glow, grownBy(rect_, growth), style_.glow, static_cast<std::uint8_t>(alpha)});
    }
}

void Planner::addShadow()
{
    if (!style_.showShadow || style_.shadowOpacity == 0)
        return;
    const Point offset{limitedLength(style_.shadowOffsetX), limitedLength(style_.shadowOffsetY)};
    add({SurfaceLayer::Shadow, movedBy(rect_, offset), style_.shadow, style_.shadowOpacity});
}

// Gradient or fill lie under the bitmap, where its transparent parts show them; over it they would hide it.
void Planner::addBase(BitmapCover bitmap)
{
    const bool hasGradient = style_.useGradient && style_.opacity > 0;
    const bool hasFill = !style_.useGradient && style_.drawFill;
    if (bitmap != BitmapCover::Full) {
        if (hasGradient)
            add(SurfaceLayer::Gradient);
        else if (hasFill)
            add({SurfaceLayer::Fill, rect_, style_.fill});
    }
    if (bitmap != BitmapCover::None)
        add(SurfaceLayer::Bitmap);
    plan_.setOpaque(bitmap == BitmapCover::Full || hasFill || (hasGradient && style_.opacity == 255));
    hasBody_ = bitmap != BitmapCover::None || hasGradient || hasFill || carriesMaterial(style_);
}

void Planner::addLight()
{
    // The material is one step, painted on the graphics card or in software, always at this place.
    if (carriesMaterial(style_))
        add(SurfaceLayer::Material);
    if (hasBody_ && castsSpatialShading(style_))
        add(SurfaceLayer::SpatialShading);
    if (style_.showInnerShadow && style_.innerShadow > 0 && style_.innerShadowSize > 0)
        add(SurfaceLayer::InnerShadow);
    if (style_.useNoise && style_.noiseOpacity > 0)
        add(SurfaceLayer::Noise);
}

void Planner::addCut(SurfaceEdge edge)
{
    // A line has no outline to follow.
    const bool isLine = rect_.width < 2 || rect_.height < 2;
    if (edge == SurfaceEdge::Antialiased && !isUpright(style_.shape) && !isLine && !plan_.face().empty())
        add(SurfaceLayer::Cut);
}

} // namespace

PaintPlan paintPlan(const SurfaceStyle& style, const Rect& rect, const std::optional<Rect>& clip,
                    BitmapCover bitmap, SurfaceEdge edge)
{
    Planner planner(style, rect, clip);
    if (!planner.isVisible(rect))
        return {};
    planner.addGlow();
    planner.addShadow();
    planner.endHalo();
    planner.addBase(bitmap);
    if (style.drawBorder)
        planner.addStrokes(SurfaceLayer::Border, style.border, 1);
    planner.addLight();
    if (style.showOutline && style.outlineWidth > 0)
        planner.addStrokes(SurfaceLayer::Outline, style.outline, style.outlineWidth);
    planner.addCut(edge);
    return planner.take();
}

Rect paintedBounds(const SurfaceStyle& style, const Rect& rect)
{
    Rect bounds;
    for (const PaintStep& step :
         paintPlan(style, rect, std::nullopt, style.image ? BitmapCover::Partial : BitmapCover::None))
        bounds = around(bounds, step.rect);
    return bounds;
}

void fillLayer(const LayerTarget& target, const Coverage& coverage, const PaintStep& step,
               const SurfaceStyle& style, Point surfaceOrigin)
{
    switch (step.layer) {
    case SurfaceLayer::Fill:
    case SurfaceLayer::Glow:
    case SurfaceLayer::Shadow: return fillSolid(target, coverage, step.color, step.alpha);
    case SurfaceLayer::Gradient: return fillGradient(target, coverage, style);
    case SurfaceLayer::SpatialShading: return fillSpatialShading(target, coverage, style);
    case SurfaceLayer::InnerShadow: return fillInnerShadow(target, coverage, style);
    case SurfaceLayer::Noise: return fillNoise(target, coverage, style, surfaceOrigin);
    case SurfaceLayer::Border:
    case SurfaceLayer::Outline: return fillStroke(target, coverage, step.color, step.penWidth);
    case SurfaceLayer::Bitmap:
    case SurfaceLayer::Material:
    case SurfaceLayer::Cut: return; // not made of the style alone
    }
}

} // namespace vela
