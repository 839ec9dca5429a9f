#include "vela/render/inner_shadow.h"

#include "vela/render/edge_steps.h"
#include "vela/render/simd.h"

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

// How the shadow fades over a distance: a wide falloff and a sharper one close to the edge. Both are 0 from
// the shadow's size on.
struct Fading {
    std::vector<float> wide;
    std::vector<float> close;

    Fading(std::int32_t size, std::int32_t count, float perStep)
    {
        const auto reach = static_cast<float>(size);
        const float closeReach = std::max(0.42F * reach, 1.0F);
        wide.reserve(static_cast<std::size_t>(count));
        close.reserve(static_cast<std::size_t>(count));
        for (std::int32_t step = 0; step < count; ++step) {
            const float distance = static_cast<float>(step) * perStep;
            wide.push_back(std::pow(std::max(0.0F, 1 - distance / reach), 1.42F));
            close.push_back(std::pow(std::max(0.0F, 1 - distance / closeReach), 2.25F));
        }
    }
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
        const Float4 u =
            simd::toFloat(simd::splat(x) + Int4{0, 1, 2, 3}) * simd::splat(perPixel(size_.width));
        const Float4 v = simd::splat(v_);
        const Float4 value = simd::splat(0.18F) * simd::greater(u, v) +
                             simd::splat(0.08F) * (simd::splat(1.0F) - simd::lesser(u, v)) +
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
    UInt4 shade(std::int32_t x, Float4 wide, Float4 close) const
    {
        const Float4 value = (position_(x) * wide + simd::splat(0.18F) * close) * simd::splat(strength_);
        const Float4 alpha = simd::lesser(value + simd::splat(0.5F), simd::splat(255.0F));
        return simd::lookUp(shades_.data(), simd::truncated(alpha));
    }

    LayerTarget target_;
    Size size_;
    std::int32_t shadowSize_;
    float strength_;
    PositionTerm position_;
    std::array<Pixel, 256> shades_;
};

// Distances are whole numbers; beyond the shadow's size along both axes nothing is drawn.
void ShadowPainter::byRectangle(const Coverage& coverage)
{
    const std::int32_t deepest = std::min(shadowSize_, (std::min(size_.width, size_.height) + 1) / 2);
    const Fading fading(shadowSize_, deepest + 1, 1.0F);
    const std::int32_t lastColumn = size_.width - 1;
    paintCovered(target_, coverage, [&](Pixel* first, Span run, std::int32_t y) {
        const std::int32_t toRow = std::min({y, size_.height - 1 - y, deepest});
        position_.enterRow(y);
        const auto edge = [&](Span columns) {
            simd::writeInFours(
                first + (columns.begin - run.begin), columns.begin, columns.end, [&](std::int32_t x) {
                    std::size_t at[simd::kLanes];
                    for (std::int32_t lane = 0; lane < simd::kLanes; ++lane)
                        at[lane] = static_cast<std::size_t>(
                            std::max(std::min({x + lane, lastColumn - x - lane, toRow}), 0));
                    const auto& [wide, close] = fading;
                    return shade(x, Float4{wide[at[0]], wide[at[1]], wide[at[2]], wide[at[3]]},
                                 Float4{close[at[0]], close[at[1]], close[at[2]], close[at[3]]});
                });
        };
        if (toRow < shadowSize_)
            return edge(run);
        const Span middle = intersect(run, {shadowSize_, size_.width - shadowSize_});
        if (middle.empty())
            return edge(run);
        edge({run.begin, middle.begin});
        simd::fillPixels(first + (middle.begin - run.begin), middle.length(), 0);
        edge({middle.end, run.end});
    });
}

void ShadowPainter::byOutline(const Coverage& coverage)
{
    const auto limit = static_cast<std::uint8_t>(std::clamp(std::min(shadowSize_, 32) + 2, 3, 34));
    const Rect visible = target_.visible();
    const EdgeSteps steps(coverage, {visible.y, visible.y + visible.height}, limit);
    const Fading straight(shadowSize_, limit + 2, 1.0F);
    const Fading diagonal(shadowSize_, limit + 2, kDiagonalStep);
    paintCovered(target_, coverage, [&](Pixel* first, Span run, std::int32_t y) {
        const std::uint8_t* const straightSteps = steps.straight(y);
        const std::uint8_t* const diagonalSteps = steps.diagonal(y);
        const std::int32_t toRow = std::min(y, size_.height - 1 - y);
        position_.enterRow(y);
        simd::writeInFours(first, run.begin, run.end, [&](std::int32_t x) {
            Float4 wide{};
            Float4 close{};
            const std::int32_t lanes = std::min(simd::kLanes, run.end - x);
            for (std::int32_t lane = 0; lane < lanes; ++lane) {
                const std::int32_t column = x + lane;
                const std::int32_t toEdge = std::min({column, size_.width - 1 - column, toRow});
                const auto near =
                    static_cast<std::size_t>(std::min<std::int32_t>(straightSteps[column], toEdge));
                const std::size_t slanted = diagonalSteps[column];
                wide[lane] = std::max(straight.wide[near], diagonal.wide[slanted]);
                close[lane] = std::max(straight.close[near], diagonal.close[slanted]);
            }
            return shade(x, wide, close);
        });
    });
}

} // namespace

InnerShadowReach innerShadowReach(const Coverage& coverage) noexcept
{
    const Size size = coverage.size();
    const std::int64_t area = std::int64_t{size.width} * size.height;
    const bool rectangular = coverage.shape() == ShapeKind::Rect || coverage.shape() > ShapeKind::SlantLeft;
    // A bitmap's outline is kept at any size: its layers never leave it.
    if (coverage.isShape() && (rectangular || area >= kSmallestRectangularArea))
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
