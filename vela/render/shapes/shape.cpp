#include "vela/render/shapes/shape.h"

#include "vela/render/shapes/doubled_lengths.h"

#include <algorithm>
#include <cstdlib>
#include <span>

namespace vela {
namespace {

// Where a polygon's corner lies along one axis: the near edge, the inset from it, the middle, and so on.
enum class At : std::uint8_t { Near, NearInset, Middle, FarInset, Far };

struct Corner {
    At x;
    At y;
};

constexpr Corner kDiamond[] = {
    {At::Middle, At::Near}, {At::Far, At::Middle}, {At::Middle, At::Far}, {At::Near, At::Middle}};
constexpr Corner kCutCorners[] = {
    {At::NearInset, At::Near}, {At::FarInset, At::Near}, {At::Far, At::NearInset}, {At::Far, At::FarInset},
    {At::FarInset, At::Far},   {At::NearInset, At::Far}, {At::Near, At::FarInset}, {At::Near, At::NearInset}};
constexpr Corner kHexagon[] = {{At::NearInset, At::Near}, {At::FarInset, At::Near}, {At::Far, At::Middle},
                               {At::FarInset, At::Far},   {At::NearInset, At::Far}, {At::Near, At::Middle}};
constexpr Corner kSlantRight[] = {
    {At::NearInset, At::Near}, {At::Far, At::Near}, {At::FarInset, At::Far}, {At::Near, At::Far}};
constexpr Corner kSlantLeft[] = {
    {At::Near, At::Near}, {At::FarInset, At::Near}, {At::Far, At::Far}, {At::NearInset, At::Far}};

std::span<const Corner> cornersOf(ShapeKind kind) noexcept
{
    switch (kind) {
    case ShapeKind::Diamond: return kDiamond;
    case ShapeKind::Bevel:
    case ShapeKind::Octagon: return kCutCorners;
    case ShapeKind::Hexagon: return kHexagon;
    case ShapeKind::SlantRight: return kSlantRight;
    case ShapeKind::SlantLeft: return kSlantLeft;
    default: return {};
    }
}

std::int32_t place(At at, std::int32_t origin, std::int32_t length, std::int32_t inset) noexcept
{
    const auto from = [origin](std::int64_t distance) { return saturated(origin + distance); };
    switch (at) {
    case At::Near: return origin;
    case At::NearInset: return from(inset);
    case At::Middle: return from(length / 2);
    case At::FarInset: return from(std::int64_t{length} - inset);
    case At::Far: break;
    }
    return from(length);
}

// The radius is half the diameter as a real number, so odd diameters stay symmetrical.
bool inRoundedRect(Wide width, Wide height, Wide x, Wide y) noexcept
{
    const Wide diameter =
        roundedDiameter(static_cast<std::int32_t>(width), static_cast<std::int32_t>(height));
    const Wide dx = distanceToRange(2 * x + 1, diameter, 2 * width - diameter);
    const Wide dy = distanceToRange(2 * y + 1, diameter, 2 * height - diameter);
    return dx == 0 || dy == 0 || dx * dx + dy * dy <= diameter * diameter;
}

// Pill's test takes the pixel's corner, not its centre, on purpose: that is how its mask is defined.
bool inHorizontalPill(Wide width, Wide height, Wide x, Wide y) noexcept
{
    const Wide diameter = std::max<Wide>(height, 2);
    const Wide dx = distanceToRange(2 * x, diameter, 2 * width - diameter);
    const Wide dy = 2 * y - height;
    return dx == 0 || dx * dx + dy * dy <= diameter * diameter;
}

bool inDiamond(Wide width, Wide height, Wide x, Wide y) noexcept
{
    const Wide acrossX = std::max<Wide>(width - 1, 2);
    const Wide acrossY = std::max<Wide>(height - 1, 2);
    const Wide dx = std::abs(2 * x - (width - 1));
    const Wide dy = std::abs(2 * y - (height - 1));
    return dx * acrossY + dy * acrossX <= acrossX * acrossY;
}

bool inCutCorners(Wide cut, Wide width, Wide height, Wide x, Wide y) noexcept
{
    const Wide nearestX = std::min(x, width - 1 - x);
    const Wide nearestY = std::min(y, height - 1 - y);
    return nearestX + nearestY >= cut;
}

// Insets of a row from the left and the right edge, as fractions with a common divisor.
struct RowInsets {
    Wide left;
    Wide right;
    Wide divisor;
};

bool betweenInsets(const RowInsets& insets, Wide width, Wide x) noexcept
{
    const Wide centre = (2 * x + 1) * insets.divisor;
    return 2 * insets.left <= centre && centre <= 2 * (width * insets.divisor - insets.right);
}

RowInsets hexagonRow(Wide inset, Wide height, Wide y) noexcept
{
    const Wide leaning = std::abs(2 * y - (height - 1)) * inset;
    return {leaning, leaning, std::max<Wide>(height - 1, 2)};
}

RowInsets slantRightRow(Wide inset, Wide height, Wide y) noexcept
{
    const Wide rows = std::max<Wide>(height - 1, 1);
    return {(rows - y) * inset, y * inset, rows};
}

RowInsets slantLeftRow(Wide inset, Wide height, Wide y) noexcept
{
    const RowInsets mirrored = slantRightRow(inset, height, y);
    return {mirrored.right, mirrored.left, mirrored.divisor};
}

} // namespace

std::int32_t cornerRadius(std::int32_t width, std::int32_t height) noexcept
{
    return std::clamp(std::max(std::min(width, height), 1) / 4, 4, 12);
}

std::int32_t roundedDiameter(std::int32_t width, std::int32_t height) noexcept
{
    return std::max(std::min({2 * cornerRadius(width, height), width, height}), 1);
}

std::int32_t pillDiameter(std::int32_t width, std::int32_t height) noexcept
{
    return std::max(std::min(width, height), 1);
}

std::int32_t cornerDiameter(ShapeKind kind, std::int32_t width, std::int32_t height) noexcept
{
    switch (kind) {
    case ShapeKind::RoundedRect: return roundedDiameter(width, height);
    case ShapeKind::Pill: return pillDiameter(width, height);
    default: return 0;
    }
}

std::int32_t cornerCut(ShapeKind kind, std::int32_t width, std::int32_t height) noexcept
{
    if (kind != ShapeKind::Bevel && kind != ShapeKind::Octagon)
        return 0;
    const std::int32_t side = std::max(std::min(width, height), 1);
    const std::int32_t limit = side < 4 ? 1 : side / 2;
    return std::clamp(side / (kind == ShapeKind::Bevel ? 5 : 3), 1, limit);
}

std::int32_t shapeInset(std::int32_t width, std::int32_t height) noexcept
{
    return std::min(std::max(std::min(height / 2, width / 4), 1), std::max(width / 2, 1));
}

std::vector<Point> shapePolygon(ShapeKind kind, const Rect& rect)
{
    const std::int32_t cut = cornerCut(kind, rect.width, rect.height);
    const std::int32_t insetX = cut > 0 ? cut : shapeInset(rect.width, rect.height);
    const auto corners = cornersOf(kind);
    std::vector<Point> points;
    points.reserve(corners.size());
    for (const Corner& corner : corners)
        points.push_back(
            {place(corner.x, rect.x, rect.width, insetX), place(corner.y, rect.y, rect.height, cut)});
    return points;
}

bool pointInShape(ShapeKind kind, std::int32_t width, std::int32_t height, Point point) noexcept
{
    if (point.x < 0 || point.x >= width || point.y < 0 || point.y >= height)
        return false;
    const Wide w = width;
    const Wide h = height;
    const Wide x = point.x;
    const Wide y = point.y;
    switch (kind) {
    case ShapeKind::RoundedRect: return inRoundedRect(w, h, x, y);
    case ShapeKind::Pill: return w >= h ? inHorizontalPill(w, h, x, y) : inHorizontalPill(h, w, y, x);
    case ShapeKind::Diamond: return inDiamond(w, h, x, y);
    case ShapeKind::Bevel:
    case ShapeKind::Octagon: return inCutCorners(cornerCut(kind, width, height), w, h, x, y);
    case ShapeKind::Hexagon: return betweenInsets(hexagonRow(shapeInset(width, height), h, y), w, x);
    case ShapeKind::SlantRight: return betweenInsets(slantRightRow(shapeInset(width, height), h, y), w, x);
    case ShapeKind::SlantLeft: return betweenInsets(slantLeftRow(shapeInset(width, height), h, y), w, x);
    default: return true;
    }
}

} // namespace vela
