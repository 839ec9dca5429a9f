#include "vela/render/shapes/signed_distance.h"

#include "vela/render/shapes/shape.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vela {

using simd::Float4;
using simd::Int4;

DistanceSample BoxDistance::at(Float4 x, float y) const noexcept
{
    const Float4 zero{};
    const Float4 one = simd::splat(1.0F);
    const Float4 fromMiddle = x - simd::splat(middleX_);
    const float downFromMiddle = y - middleY_;
    // How far beyond the centres of the corner circles.
    const Float4 beyondX = simd::abs(fromMiddle) - simd::splat(halfWidth_);
    const Float4 beyondY = simd::splat(std::abs(downFromMiddle) - halfHeight_);
    const Int4 inCorner = (beyondX > zero) & (beyondY > zero);
    const Int4 sideways = beyondX > beyondY;
    const Float4 reach = simd::sqrt(beyondX * beyondX + beyondY * beyondY) + simd::splat(1e-6F);
    const Float4 outX = inCorner ? beyondX / reach : (sideways ? one : zero);
    const Float4 outY = inCorner ? beyondY / reach : (sideways ? zero : one);
    const Float4 beyond = inCorner ? reach : (sideways ? beyondX : beyondY);
    return {simd::splat(radius_) - beyond, fromMiddle < zero ? -outX : outX,
            downFromMiddle < 0 ? -outY : outY};
}

// What lies so deep is a box again, smaller and with smaller corners; in the rows of its corners only the
// part between their circles' middles is taken.
InnerRange BoxDistance::innerRange(float depth, float y) const noexcept
{
    const float down = std::abs(y - middleY_);
    const float corner = std::max(radius_ - depth, 0.0F);
    const float halfHeight = halfHeight_ + radius_ - depth;
    if (down > halfHeight)
        return {1, 0};
    const float halfWidth = halfWidth_ + radius_ - depth - (down > halfHeight - corner ? corner : 0);
    return {middleX_ - halfWidth, middleX_ + halfWidth};
}

PolygonDistance::PolygonDistance(ShapeKind kind, const Rect& rect)
{
    const std::vector<Point> corners = shapePolygon(kind, rect);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point from = corners[i];
        const Point to = corners[(i + 1) % corners.size()];
        const auto dx = static_cast<float>(to.x - from.x);
        const auto dy = static_cast<float>(to.y - from.y);
        const float length = std::sqrt(dx * dx + dy * dy);
        if (length > 0) // clockwise, so the outside lies to the left of the way
            sides_[count_++] = {dy / length, -dx / length, static_cast<float>(from.x),
                                static_cast<float>(from.y)};
    }
}

DistanceSample PolygonDistance::at(Float4 x, float y) const noexcept
{
    DistanceSample nearest{simd::splat(1e6F), {}, {}};
    for (std::size_t i = 0; i < count_; ++i) {
        const Side& side = sides_[i];
        const Float4 distance =
            (simd::splat(side.x) - x) * simd::splat(side.outX) + simd::splat((side.y - y) * side.outY);
        const Int4 nearer = distance < nearest.distance;
        nearest.distance = nearer ? distance : nearest.distance;
        nearest.outX = nearer ? simd::splat(side.outX) : nearest.outX;
        nearest.outY = nearer ? simd::splat(side.outY) : nearest.outY;
    }
    return nearest;
}

InnerRange PolygonDistance::innerRange(float depth, float y) const noexcept
{
    InnerRange range{-1e6F, 1e6F};
    for (std::size_t i = 0; i < count_; ++i) {
        const Side& side = sides_[i];
        // (side.x - x) * outX + (side.y - y) * outY >= depth
        const float room = (side.y - y) * side.outY - depth;
        if (side.outX > 0)
            range.high = std::min(range.high, side.x + room / side.outX);
        else if (side.outX < 0)
            range.low = std::max(range.low, side.x + room / side.outX);
        else if (room < 0)
            return {1, 0};
    }
    return range;
}

BoxDistance boxDistance(ShapeKind kind, const Rect& rect) noexcept
{
    return {static_cast<float>(rect.x), static_cast<float>(rect.y), static_cast<float>(rect.width),
            static_cast<float>(rect.height),
            static_cast<float>(cornerDiameter(kind, rect.width, rect.height)) / 2};
}

} // namespace vela
