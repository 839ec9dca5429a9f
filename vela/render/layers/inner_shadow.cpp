#include "vela/render/layers/inner_shadow.h"

#include "vela/render/pixels/simd.h"
#include "vela/render/shapes/distance_transform.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace vela {
namespace {

using simd::Float4;
using simd::Int4;
using simd::UInt4;

constexpr std::int64_t kLargestSearchedArea = 10000;
constexpr std::int64_t kSmallestRectangularArea = 48001;
constexpr float kDiagonalStep = 0.7071067811865476F;

// How strong the shadow is at a distance: a wide falloff and a sharper one close to the edge. Both are 0 from
// the shadow's size on.
struct Falloff {
    float wide = 0;
    float close = 0;
};

Falloff falloffAt(float distance, std::int32_t size) noexcept
{
    const auto reach = static_cast<float>(size);
    const float closeReach = std::max(0.42F * reach, 1.0F);
    return {std::pow(std::max(0.0F, 1 - distance / reach), 1.42F),
            std::pow(std::max(0.0F, 1 - distance / closeReach), 2.25F)};
}

// Of four pixels, by falloff.
struct Falloffs {
    Float4 wide;
    Float4 close;
};

Falloffs gathered(const Falloff& a, const Falloff& b, const Falloff& c, const Falloff& d) noexcept
{
    return {Float4{a.wide, b.wide, c.wide, d.wide}, Float4{a.close, b.close, c.close, d.close}};
}

// The falloff for each visible column of a row, by its distance to the nearer side. It is read in fours.
class FalloffByColumn {
public:
    FalloffByColumn(std::int32_t size, std::int32_t width, Span visible)
        : first_(visible.begin), wide_(static_cast<std::size_t>(visible.length()) + simd::kLanes),
          close_(wide_.size())
    {
        for (std::int32_t x = visible.begin; x < visible.end; ++x) {
            const std::int32_t opposite = width - 1 - x; // as far from the other side
            const std::int32_t distance = std::min(x, opposite);
            if (distance >= size)
                continue;
            const auto column = static_cast<std::size_t>(x - first_);
            const bool known = opposite >= first_ && opposite < x;
            const auto like = static_cast<std::size_t>(known ? opposite - first_ : 0);
            const Falloff falloff =
                known ? Falloff{wide_[like], close_[like]} : falloffAt(static_cast<float>(distance), size);
            wide_[column] = falloff.wide;
            close_[column] = falloff.close;
        }
    }

    Falloffs at(std::int32_t x) const noexcept
    {
        return {simd::load(wide_.data() + (x - first_)), simd::load(close_.data() + (x - first_))};
    }

private:
    std::int32_t first_;
    std::vector<float> wide_;
    std::vector<float> close_;
};

// The falloff for each pair of a straight and a diagonal number of steps: that of the shorter distance.
class FalloffBySteps {
public:
    FalloffBySteps(std::int32_t size, std::int32_t mostSteps)
        : stride_(static_cast<std::size_t>(mostSteps) + 1)
    {
        table_.reserve(stride_ * stride_);
        for (std::int32_t steps = 0; steps <= mostSteps; ++steps)
            table_.insert(table_.end(), stride_, falloffAt(static_cast<float>(steps), size));
        for (std::size_t steps = 0; steps < stride_; ++steps) {
            const Falloff slanted = falloffAt(static_cast<float>(steps) * kDiagonalStep, size);
            for (std::size_t at = steps; at < table_.size(); at += stride_)
                table_[at] = {std::max(table_[at].wide, slanted.wide),
                              std::max(table_[at].close, slanted.close)};
        }
    }

    const Falloff& at(std::uint8_t straight, std::uint8_t diagonal) const noexcept
    {
        return table_[straight * stride_ + diagonal];
    }

private:
    std::size_t stride_;
    std::vector<Falloff> table_;
};

// The darkness of a position on the surface where both falloffs are full.
class PositionTerm {
public:
    explicit PositionTerm(Size size) : size_(size)
    {
        alongRows_ = size.width > 2 * std::int64_t{size.height} && size.height <= kThickestBar;
        alongColumns_ =
            !alongRows_ && size.height > 2 * std::int64_t{size.width} && size.width <= kThickestBar;
        for (std::int32_t x = 0; alongColumns_ && x < size.width; ++x)
            columns_[static_cast<std::size_t>(x)] = elongation(x, size.width);
    }

    void enterRow(std::int32_t y)
    {
        v_ = at(y, size_.height);
        row_ = alongRows_ ? elongation(y, size_.height) : 0.0F;
    }

    // Of four pixels of the row.
    Float4 operator()(std::int32_t x) const
    {
        const Float4 u = simd::toFloat(simd::columnsFrom(x)) * simd::splat(perPixel(size_.width));
        const Float4 v = simd::splat(v_);
        const Float4 value = simd::splat(0.18F) * simd::max(u, v) +
                             simd::splat(0.08F) * (simd::splat(1.0F) - simd::min(u, v)) +
                             simd::splat(0.7F + row_);
        if (!alongColumns_)
            return value;
        const float* column = columns_.data() + x;
        return value + Float4{column[0], column[1], column[2], column[3]};
    }

private:
    static constexpr std::int32_t kThickestBar = 120; // the long thin surfaces that are shaded across

    static float perPixel(std::int32_t length)
    {
        return length > 1 ? 1.0F / static_cast<float>(length - 1) : 0.0F;
    }
    static float at(std::int32_t pixel, std::int32_t length)
    {
        return static_cast<float>(pixel) * perPixel(length);
    }
    static float elongation(std::int32_t pixel, std::int32_t length)
    {
        return 0.22F * std::pow(std::abs(2 * at(pixel, length) - 1), 2.35F);
    }

    Size size_;
    bool alongRows_ = false;
    bool alongColumns_ = false;
    float v_ = 0;
    float row_ = 0;
    std::array<float, kThickestBar + simd::kLanes> columns_{}; // read in fours
};

class ShadowPainter {
public:
    ShadowPainter(const LayerTarget& target, Size size, const SurfaceStyle& style)
        : target_(target), size_(size), shadowSize_(style.innerShadowSize),
          strength_(static_cast<float>(style.innerShadow)), position_(size)
    {
        for (unsigned alpha = 0; alpha < shades_.size(); ++alpha)
            shades_[alpha] = premultiplied(style.innerShadowColor, alpha);
    }

    void byRectangle(const Coverage& coverage);
    void byOutline(const Coverage& coverage);

private:
    UInt4 shade(std::int32_t x, const Falloffs& falloff) const
    {
        const Float4 value =
            (position_(x) * falloff.wide + simd::splat(0.18F) * falloff.close) * simd::splat(strength_);
        const Float4 alpha = simd::min(value + simd::splat(0.5F), simd::splat(255.0F));
        return simd::lookUp(shades_.data(), simd::truncated(alpha));
    }

    LayerTarget target_;
    Size size_;
    std::int32_t shadowSize_;
    float strength_;
    PositionTerm position_;
    std::array<Pixel, 256> shades_;
};

// The nearest of the four edges counts: it is the one with the strongest falloff.
void ShadowPainter::byRectangle(const Coverage& coverage)
{
    const Rect visible = target_.visible();
    const FalloffByColumn columns(shadowSize_, size_.width, {visible.x, visible.x + visible.width});
    paintCovered(target_, coverage, [&](Pixel* first, Span run, std::int32_t y) {
        const std::int32_t toRow = std::min(y, size_.height - 1 - y);
        const Falloff row =
            toRow < shadowSize_ ? falloffAt(static_cast<float>(toRow), shadowSize_) : Falloff{};
        position_.enterRow(y);
        const auto write = [&](Span part) {
            if (!part.empty())
                simd::writeInFours(first + (part.begin - run.begin), part.begin, part.end,
                                   [&](std::int32_t x) {
                                       const Falloffs column = columns.at(x);
                                       return shade(x, {simd::max(column.wide, simd::splat(row.wide)),
                                                        simd::max(column.close, simd::splat(row.close))});
                                   });
        };
        const Span deep = intersect(run, {shadowSize_, size_.width - shadowSize_});
        if (toRow < shadowSize_ || deep.empty())
            return write(run);
        write({run.begin, deep.begin});
        simd::fillPixels(first + (deep.begin - run.begin), deep.length(), 0);
        write({deep.end, run.end});
    });
}

void ShadowPainter::byOutline(const Coverage& coverage)
{
    const auto limit = static_cast<std::uint8_t>(std::clamp(std::min(shadowSize_, 32) + 2, 3, 34));
    const Rect visible = target_.visible();
    const Coverage outline = coverage.isCut() ? coverage : Coverage(coverage.shape(), size_);
    const DistanceTransform distance(outline, {visible.y, visible.y + visible.height}, limit);
    const FalloffBySteps falloff(shadowSize_, limit + 1);
    paintCovered(target_, coverage, [&](Pixel* first, Span run, std::int32_t y) {
        const std::uint8_t* const straight = distance.straight(y);
        const std::uint8_t* const diagonal = distance.diagonal(y);
        const std::int32_t last = run.end - 1;
        const Span inside = coverage.isCut() ? run : shapeRow(coverage.shape(), size_, y);
        position_.enterRow(y);
        simd::writeInFours(first, run.begin, run.end, [&](std::int32_t x) {
            const auto at = [&](std::int32_t lane) -> const Falloff& {
                const std::int32_t column = std::min(x + lane, last);
                // What lies beyond the outline is as dark as the outline itself.
                return column < inside.begin || column >= inside.end
                           ? falloff.at(0, 0)
                           : falloff.at(straight[column], diagonal[column]);
            };
            const Falloffs four = gathered(at(0), at(1), at(2), at(3));
            // Most pixels of a surface lie deeper than the shadow.
            const float strongest =
                std::max(std::max(four.wide[0], four.wide[1]), std::max(four.wide[2], four.wide[3]));
            return strongest > 0 ? shade(x, four) : UInt4{};
        });
    });
}

} // namespace

InnerShadowReach innerShadowReach(const Coverage& coverage) noexcept
{
    const Size size = coverage.size();
    const std::int64_t area = std::int64_t{size.width} * size.height;
    // A bitmap's outline is followed at any size: its layers never leave it.
    if (coverage.isShape() && (isUpright(coverage.shape()) || area >= kSmallestRectangularArea))
        return InnerShadowReach::Rectangle;
    return area > kLargestSearchedArea ? InnerShadowReach::RectangleInside : InnerShadowReach::Outline;
}

void fillInnerShadow(const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style)
{
    if (style.innerShadowSize < 1)
        return clearLayer(target);
    ShadowPainter painter(target, coverage.size(), style);
    switch (innerShadowReach(coverage)) {
    case InnerShadowReach::Rectangle: return painter.byRectangle({ShapeKind::Rect, coverage.size()});
    case InnerShadowReach::RectangleInside: return painter.byRectangle(coverage);
    case InnerShadowReach::Outline: return painter.byOutline(coverage);
    }
}

} // namespace vela
