#include "vela/render/shapes/shape_rects.h"

#include <cmath>

namespace vela {
namespace {

// How far a disc reaches to the side, at a distance above or below its centre.
std::int32_t reachOfDisc(std::int32_t radius, std::int32_t distance) noexcept
{
    const double square = static_cast<double>(radius) * radius - static_cast<double>(distance) * distance;
    return static_cast<std::int32_t>(std::sqrt(std::max(square, 0.0)));
}

} // namespace

Span innerRow(ShapeKind kind, Size size, std::int32_t penWidth, std::int32_t y) noexcept
{
    // Nothing is left beyond the middle of the short side, however wide the pen.
    const std::int32_t width = std::min(penWidth, std::min(size.width, size.height));
    Span inner{0, size.width};
    for (std::int32_t distance = -width; distance <= width && !inner.empty(); ++distance) {
        const Span row = shapeRow(kind, size, y + distance);
        const std::int32_t reach = reachOfDisc(width, distance);
        inner = row.empty() ? Span{} : intersect(inner, {row.begin + reach, row.end - reach});
    }
    return inner.empty() ? Span{} : inner;
}

} // namespace vela
