#include "vela/render/shapes/shape_rects.h"

#include <cmath>
#include <cstdlib>

namespace vela {
namespace {

// What a disc around a pixel of one row asks of the rows above and below it.
class InnerRowSearch {
public:
    InnerRowSearch(ShapeKind kind, Size size, std::int32_t radius, std::int32_t y) noexcept
        : kind_(kind), size_(size), radius_(radius), y_(y)
    {
    }

    // Every row that the disc reaches must be one of the shape's.
    Span found() noexcept
    {
        const Row own = at(y_);
        search(own, at(y_ - radius_));
        search(own, at(y_ + radius_));
        return inner_.empty() ? Span{} : inner_;
    }

private:
    struct Row {
        std::int32_t y;
        Span pixels;
    };

    // How far the disc reaches to the side in that row.
    std::int32_t reachAt(std::int32_t y) const noexcept
    {
        const double distance = y - y_;
        return static_cast<std::int32_t>(
            std::sqrt(static_cast<double>(radius_) * radius_ - distance * distance));
    }

    Row at(std::int32_t y) noexcept
    {
        const Row row{y, shapeRow(kind_, size_, y)};
        const std::int32_t reach = reachAt(y);
        inner_ = intersect(inner_, {row.pixels.begin + reach, row.pixels.end - reach});
        return row;
    }

    // The rows between two. Every shape's left side bends one way only, and so does its right side: no row
    // between two is narrower on either side than the narrower of them. With the disc's reach where it is
    // widest, that says whether any of them can take more away.
    void search(const Row& near, const Row& far) noexcept
    {
        if (std::abs(far.y - near.y) < 2 || inner_.empty())
            return;
        const std::int32_t reach = reachAt(near.y);
        if (std::max(near.pixels.begin, far.pixels.begin) + reach <= inner_.begin &&
            std::min(near.pixels.end, far.pixels.end) - reach >= inner_.end)
            return;
        const Row middle = at(near.y + (far.y - near.y) / 2);
        search(near, middle);
        search(middle, far);
    }

    ShapeKind kind_;
    Size size_;
    std::int32_t radius_;
    std::int32_t y_;
    Span inner_{0, size_.width};
};

} // namespace

Span innerRow(ShapeKind kind, Size size, std::int32_t penWidth, std::int32_t y) noexcept
{
    const std::int32_t width = limitedLength(penWidth);
    // Nothing is left beyond the middle of the short side, however wide the pen.
    if (y < width || y >= size.height - width || width >= size.width - width)
        return {};
    return InnerRowSearch(kind, size, width, y).found();
}

} // namespace vela
