#include "vela/render/shapes/shape_rows.h"

#include "vela/render/shapes/doubled_lengths.h"
#include "vela/render/shapes/shape.h"

#include <cmath>
#include <cstdlib>

namespace vela {
namespace {

// Each inside test holds for the x whose double lies between two limits. They are whole numbers because the
// tests are exact and x is whole.
struct DoubledLimits {
    Wide low;
    Wide high;
};

Span spanBetween(DoubledLimits limits, Wide width) noexcept
{
    const auto pixel = [width](Wide at) { return static_cast<std::int32_t>(std::clamp<Wide>(at, 0, width)); };
    return {pixel((limits.low + 1) >> 1), pixel((limits.high >> 1) + 1)};
}

Wide floorRoot(Wide square) noexcept
{
    auto root = static_cast<Wide>(std::sqrt(static_cast<double>(square)));
    while (root * root > square)
        --root;
    while ((root + 1) * (root + 1) <= square)
        ++root;
    return root;
}

// How far a circle reaches to the side at a distance above or below its centre. Both lengths are doubled.
Wide reachOfCircle(Wide diameter, Wide distance) noexcept
{
    if (distance == 0)
        return diameter; // most rows of most shapes
    return floorRoot(diameter * diameter - distance * distance);
}

DoubledLimits roundedRow(Wide width, Wide height, Wide y) noexcept
{
    const Wide diameter =
        roundedDiameter(static_cast<std::int32_t>(width), static_cast<std::int32_t>(height));
    const Wide dy = distanceToRange(2 * y + 1, diameter, 2 * height - diameter);
    const Wide reach = reachOfCircle(diameter, dy);
    return {diameter - reach - 1, 2 * width - diameter + reach - 1};
}

DoubledLimits horizontalPillRow(Wide width, Wide height, Wide y) noexcept
{
    const Wide diameter = std::max<Wide>(height, 2);
    const Wide reach = reachOfCircle(diameter, 2 * y - height);
    return {diameter - reach, 2 * width - diameter + reach};
}

DoubledLimits verticalPillRow(Wide width, Wide height, Wide y) noexcept
{
    const Wide diameter = std::max<Wide>(width, 2);
    const Wide dy = distanceToRange(2 * y, diameter, 2 * height - diameter);
    const Wide reach = dy == 0 ? width : reachOfCircle(diameter, dy);
    return {width - reach, width + reach};
}

DoubledLimits diamondRow(Wide width, Wide height, Wide y) noexcept
{
    const Wide acrossX = std::max<Wide>(width - 1, 2);
    const Wide acrossY = std::max<Wide>(height - 1, 2);
    const Wide dy = std::abs(2 * y - (height - 1));
    const Wide reach = acrossX * (acrossY - dy) / acrossY;
    return {width - 1 - reach, width - 1 + reach};
}

DoubledLimits cutCornersRow(Wide cut, Wide width, Wide height, Wide y) noexcept
{
    const Wide inset = std::max<Wide>(cut - std::min(y, height - 1 - y), 0);
    return {2 * inset, 2 * (width - 1 - inset)};
}

// Insets from the left and the right edge are fractions with a common divisor; centres lie at x + 1/2.
DoubledLimits leaningRow(Wide left, Wide right, Wide divisor, Wide width) noexcept
{
    const Wide low = (2 * left + divisor - 1) / divisor;
    const Wide high = 2 * (width * divisor - right) / divisor;
    return {low - 1, high - 1};
}

DoubledLimits hexagonRow(Wide inset, Wide width, Wide height, Wide y) noexcept
{
    const Wide leaning = std::abs(2 * y - (height - 1)) * inset;
    return leaningRow(leaning, leaning, std::max<Wide>(height - 1, 2), width);
}

DoubledLimits slantRightRow(Wide inset, Wide width, Wide height, Wide y) noexcept
{
    const Wide rows = std::max<Wide>(height - 1, 1);
    return leaningRow((rows - y) * inset, y * inset, rows, width);
}

DoubledLimits slantLeftRow(Wide inset, Wide width, Wide height, Wide y) noexcept
{
    const Wide rows = std::max<Wide>(height - 1, 1);
    return leaningRow(y * inset, (rows - y) * inset, rows, width);
}

DoubledLimits limitsOfRow(ShapeKind kind, Size size, Wide y) noexcept
{
    const Wide w = size.width;
    const Wide h = size.height;
    switch (kind) {
    case ShapeKind::RoundedRect: return roundedRow(w, h, y);
    case ShapeKind::Pill: return w >= h ? horizontalPillRow(w, h, y) : verticalPillRow(w, h, y);
    case ShapeKind::Diamond: return diamondRow(w, h, y);
    case ShapeKind::Bevel:
    case ShapeKind::Octagon: return cutCornersRow(cornerCut(kind, size.width, size.height), w, h, y);
    case ShapeKind::Hexagon: return hexagonRow(shapeInset(size.width, size.height), w, h, y);
    case ShapeKind::SlantRight: return slantRightRow(shapeInset(size.width, size.height), w, h, y);
    case ShapeKind::SlantLeft: return slantLeftRow(shapeInset(size.width, size.height), w, h, y);
    default: return {0, 2 * (w - 1)};
    }
}

} // namespace

Span shapeRow(ShapeKind kind, Size size, std::int32_t y) noexcept
{
    if (y < 0 || y >= size.height || size.width < 1)
        return {};
    const Span row = spanBetween(limitsOfRow(kind, size, y), size.width);
    return row.empty() ? Span{} : row;
}

} // namespace vela
