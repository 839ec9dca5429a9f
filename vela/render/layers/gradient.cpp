#include "vela/render/layers/gradient.h"

#include "vela/render/layers/color_ramp.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace vela {
namespace {

using simd::Float4;
using simd::Int4;
using simd::UInt4;

constexpr GradientAxis kAxes[] = {
    {0, 0, 1},        // Vertical
    {1, 0, -1},       // VerticalUp
    {0, 1, 0},        // Horizontal
    {1, -1, 0},       // HorizontalLeft
    {0, 0.5, 0.5},    // DiagonalDown
    {1, -0.5, -0.5},  // DiagonalDownReverse
    {0.5, 0.5, -0.5}, // DiagonalUp
    {0.5, -0.5, 0.5}, // DiagonalUpReverse
};

constexpr bool isReversed(GradientDirection direction) noexcept
{
    return (static_cast<int>(direction) & 1) != 0;
}

// u and v run from 0 at the first pixel to 1 at the last; a length of 1 stays at 0.
constexpr double perPixel(std::int32_t length) noexcept { return length > 1 ? 1.0 / (length - 1) : 0.0; }

// u - 0.5, exactly 0 in the middle and symmetrical about it.
constexpr double fromMiddle(std::int32_t at, std::int32_t length) noexcept
{
    return length > 1 ? 0.5 * (2.0 * at - (length - 1)) / (length - 1) : -0.5;
}

// Kinds that are not linear along a row look their colours up in a table. Its steps are so small that no
// channel moves by more than half a level between two of them.
constexpr std::int32_t kTableSteps = 1024;
using ColorTable = std::array<Pixel, kTableSteps + 1>;

ColorTable colorTable(const ColorRamp& ramp, bool reversed)
{
    ColorTable table;
    const double step = 1.0 / kTableSteps;
    ramp.fillRun(table.data(), {0, kTableSteps + 1}, reversed ? 1 : 0, reversed ? -step : step);
    return table;
}

// The offsets of four pixels in a row from the middle column.
Float4 fourFromMiddle(std::int32_t x, std::int32_t width) noexcept
{
    if (width == 1)
        return simd::splat(-0.5F);
    const std::uint32_t first = 2 * static_cast<std::uint32_t>(x) - static_cast<std::uint32_t>(width - 1);
    const Int4 doubled = reinterpret_cast<Int4>(simd::splat(first) + UInt4{0, 2, 4, 6});
    return simd::toFloat(doubled) * simd::splat(0.5F / static_cast<float>(width - 1));
}

void fillAlongAxis(const LayerTarget& target, const Coverage& coverage, const ColorRamp& ramp,
                   const GradientAxis& axis)
{
    const double alongRow = axis.acrossU * perPixel(coverage.size().width);
    const double alongColumn = axis.acrossV * perPixel(coverage.size().height);
    paintCovered(target, coverage, [&](Pixel* first, Span run, std::int32_t y) {
        ramp.fillRun(first, run, axis.offset + alongColumn * y, alongRow);
    });
}

// All rows are parts of one.
void fillAcross(const LayerTarget& target, const Coverage& coverage, const ColorRamp& ramp,
                const GradientAxis& axis)
{
    const Rect visible = target.visible();
    const double step = axis.acrossU * perPixel(coverage.size().width);
    std::vector<Pixel> row(static_cast<std::size_t>(visible.width));
    ramp.fillRun(row.data(), {visible.x, visible.x + visible.width}, axis.offset, step);
    paintCovered(target, coverage, [&](Pixel* first, Span run, std::int32_t) {
        std::copy_n(row.data() + (run.begin - visible.x), run.length(), first);
    });
}

void fillDiamond(const LayerTarget& target, const Coverage& coverage, const ColorRamp& ramp)
{
    const std::int32_t width = coverage.size().width;
    const double step = 2 * perPixel(width);
    const std::int32_t middle = width > 1 ? width / 2 : 1; // from here on u is at least 0.5
    paintCovered(target, coverage, [&](Pixel* first, Span run, std::int32_t y) {
        const double atRow = 2 * std::abs(fromMiddle(y, coverage.size().height));
        const auto startAt = [&](std::int32_t x) { return atRow + 2 * std::abs(fromMiddle(x, width)); };
        const Span left = intersect(run, {0, middle});
        const Span right = intersect(run, {middle, width});
        if (!left.empty())
            ramp.fillRun(first, left, startAt(0), -step);
        if (!right.empty())
            ramp.fillRun(first + left.length(), {right.begin - middle, right.end - middle}, startAt(middle),
                         step);
    });
}

void fillRadial(const LayerTarget& target, const Coverage& coverage, const ColorTable& table)
{
    const Size size = coverage.size();
    paintCovered(target, coverage, [&](Pixel* first, Span run, std::int32_t y) {
        // The distance over the square root of a half, in steps of the table.
        constexpr float kScale = 2.0F * kTableSteps * kTableSteps;
        const auto dy = static_cast<float>(fromMiddle(y, size.height));
        simd::writeInFours(first, run.begin, run.end, [&](std::int32_t x) {
            const Float4 dx = fourFromMiddle(x, size.width);
            const Float4 steps = simd::sqrt((dx * dx + simd::splat(dy * dy)) * simd::splat(kScale));
            // Clamped: rounding may overshoot in a corner, and the last group of a row may reach past it.
            const Float4 last = simd::splat(static_cast<float>(kTableSteps));
            return simd::lookUp(table.data(), simd::truncated(simd::min(steps, last) + simd::splat(0.5F)));
        });
    });
}

// atan2 to within 0.00001 radians.
Float4 angleOf(Float4 dy, Float4 dx) noexcept
{
    const Float4 absX = simd::abs(dx);
    const Float4 absY = simd::abs(dy);
    const Float4 tiny = simd::splat(1e-20F); // the centre has the angle 0
    const Float4 ratio = simd::min(absX, absY) / simd::max(simd::max(absX, absY), tiny);
    const Float4 square = ratio * ratio;
    Float4 angle = simd::splat(-0.01172120F) * square + simd::splat(0.05265332F);
    angle = angle * square - simd::splat(0.11643287F);
    angle = angle * square + simd::splat(0.19354346F);
    angle = angle * square - simd::splat(0.33262347F);
    angle = (angle * square + simd::splat(0.99997726F)) * ratio;
    angle = absY > absX ? simd::splat(std::numbers::pi_v<float> / 2) - angle : angle;
    angle = dx < simd::splat(0.0F) ? simd::splat(std::numbers::pi_v<float>) - angle : angle;
    return dy < simd::splat(0.0F) ? -angle : angle;
}

void fillConic(const LayerTarget& target, const Coverage& coverage, const ColorTable& table)
{
    const Size size = coverage.size();
    paintCovered(target, coverage, [&](Pixel* first, Span run, std::int32_t y) {
        const Float4 dy = simd::splat(static_cast<float>(fromMiddle(y, size.height)));
        simd::writeInFours(first, run.begin, run.end, [&](std::int32_t x) {
            constexpr float kStepsPerRadian = kTableSteps / (2 * std::numbers::pi_v<float>);
            const Float4 angle = angleOf(dy, fourFromMiddle(x, size.width));
            return simd::lookUp(table.data(), simd::truncated(angle * simd::splat(kStepsPerRadian) +
                                                              simd::splat(0.5F * kTableSteps + 0.5F)));
        });
    });
}

} // namespace

const GradientAxis& gradientAxis(GradientDirection direction) noexcept
{
    const auto index = static_cast<std::size_t>(direction);
    return kAxes[index < std::size(kAxes) ? index : 0];
}

double gradientParameter(GradientKind kind, GradientDirection direction, std::int32_t x, std::int32_t y,
                         std::int32_t width, std::int32_t height) noexcept
{
    const GradientAxis& axis = gradientAxis(direction);
    const double along = std::clamp(
        axis.offset + axis.acrossU * x * perPixel(width) + axis.acrossV * y * perPixel(height), 0.0, 1.0);
    const double dx = fromMiddle(x, width);
    const double dy = fromMiddle(y, height);
    double position = along;
    switch (kind) {
    case GradientKind::Reflected: position = 1 - std::abs(2 * along - 1); break;
    case GradientKind::Radial: position = std::sqrt(2 * (dx * dx + dy * dy)); break;
    case GradientKind::Diamond: position = 2 * (std::abs(dx) + std::abs(dy)); break;
    case GradientKind::Conic: {
        const double turn = (std::atan2(dy, dx) + std::numbers::pi) / (2 * std::numbers::pi);
        position = isReversed(direction) ? 1 - turn : turn;
        break;
    }
    default: break;
    }
    return std::clamp(position, 0.0, 1.0);
}

void fillGradient(const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style)
{
    using Course = ColorRamp::Course;
    const ColorRamp ramp(style,
                         style.gradientKind == GradientKind::Reflected ? Course::Mirrored : Course::Once);
    switch (style.gradientKind) {
    case GradientKind::Radial: return fillRadial(target, coverage, colorTable(ramp, false));
    case GradientKind::Diamond: return fillDiamond(target, coverage, ramp);
    case GradientKind::Conic:
        return fillConic(target, coverage, colorTable(ramp, isReversed(style.gradientDirection)));
    default: break;
    }
    const GradientAxis& axis = gradientAxis(style.gradientDirection);
    return axis.acrossV == 0 ? fillAcross(target, coverage, ramp, axis)
                             : fillAlongAxis(target, coverage, ramp, axis);
}

} // namespace vela
