// The signed distance of points to the outline of a shape, four at a time and in fractions of pixels: for
// light that follows the outline and for antialiased edges. It is positive inside.
#pragma once

#include "vela/geometry.h"
#include "vela/render/pixels/simd.h"
#include "vela/theme/records/vocabulary.h"

#include <array>

namespace vela {

struct DistanceSample {
    simd::Float4 distance;
    simd::Float4 outX; // the direction out of the shape, of length 1
    simd::Float4 outY;
};

// The x between which a row of points lies at least so deep inside the shape; none when low exceeds high. It
// may be a little less than what is so deep, never more.
struct InnerRange {
    float low;
    float high;
};

// A rectangle with round corners, as a pill is too.
class BoxDistance {
public:
    BoxDistance(float left, float top, float width, float height, float radius) noexcept
        : middleX_(left + width / 2), middleY_(top + height / 2), halfWidth_(width / 2 - radius),
          halfHeight_(height / 2 - radius), radius_(radius)
    {
    }

    DistanceSample at(simd::Float4 x, float y) const noexcept;
    InnerRange innerRange(float depth, float y) const noexcept;

private:
    float middleX_;
    float middleY_;
    float halfWidth_; // to the centres of the corner circles
    float halfHeight_;
    float radius_;
};

// A convex polygon: the nearest side counts, so facets meet in a clean mitre.
class PolygonDistance {
public:
    PolygonDistance(ShapeKind kind, const Rect& rect);

    DistanceSample at(simd::Float4 x, float y) const noexcept;
    InnerRange innerRange(float depth, float y) const noexcept;

private:
    struct Side {
        float outX;
        float outY;
        float x; // a point on it
        float y;
    };
    static constexpr std::size_t kMostSides = 8;
    std::array<Side, kMostSides> sides_{};
    std::size_t count_ = 0;
};

BoxDistance boxDistance(ShapeKind kind, const Rect& rect) noexcept; // of Rect, RoundedRect and Pill

// Calls use(edge) with the distance to the outline of the shape in the rectangle, as the class that knows its
// kind.
template <typename Use>
void withSignedDistance(ShapeKind kind, const Rect& rect, Use&& use)
{
    if (kind >= ShapeKind::Diamond && kind <= ShapeKind::SlantLeft)
        use(PolygonDistance(kind, rect));
    else
        use(boxDistance(kind, rect));
}

} // namespace vela
