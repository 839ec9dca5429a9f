#include "vela/render/shapes/distance_transform.h"

#include <algorithm>
#include <utility>

namespace vela {
namespace {

using Steps = std::uint8_t;

// By value: the compiler turns loops of it into vector code.
constexpr Steps lesser(Steps a, Steps b) noexcept { return a < b ? a : b; }

// One row's steps towards the rows before it: straight on and along both diagonals. One column beyond the
// outline stands on either side of the surface.
class FrontRow {
public:
    explicit FrontRow(std::int32_t width) : stride_(static_cast<std::size_t>(width) + 2), steps_(3 * stride_)
    {
    }

    Steps* up() { return steps_.data() + 1; }
    Steps* upLeft() { return steps_.data() + stride_ + 1; }
    Steps* upRight() { return steps_.data() + 2 * stride_ + 1; }
    void clear() { std::fill(steps_.begin(), steps_.end(), Steps{0}); }
    void fill(std::int32_t width, Steps steps)
    {
        for (Steps* const direction : {up(), upLeft(), upRight()})
            std::fill_n(direction, width, steps);
    }

private:
    std::size_t stride_;
    std::vector<Steps> steps_;
};

// Walks over a surface row by row. The steps of a row follow from those of the row before, one more in a
// covered pixel and none in any other, so one walk searches from every pixel.
class Front {
public:
    // When the walk starts inside the surface, what lies before is out of reach.
    Front(std::int32_t width, Steps limit, bool atSurfaceEdge) : limit_(limit), before_(width), here_(width)
    {
        if (!atSurfaceEdge)
            here_.fill(width, static_cast<Steps>(limit + 1));
    }

    void enterRow()
    {
        std::swap(before_, here_);
        here_.clear();
    }

    // Lowers the steps found so far to those of this walk.
    void cover(Span run, Steps* __restrict straight, Steps* __restrict diagonal)
    {
        const Steps limit = limit_;
        const Steps* const wasUp = before_.up();
        const Steps* const wasUpLeft = before_.upLeft() - 1;
        const Steps* const wasUpRight = before_.upRight() + 1;
        Steps* __restrict up = here_.up();
        Steps* __restrict upLeft = here_.upLeft();
        Steps* __restrict upRight = here_.upRight();
        const auto oneMore = [limit](Steps steps) { return static_cast<Steps>(lesser(steps, limit) + 1); };
        for (std::int32_t x = run.begin; x < run.end; ++x) {
            up[x] = oneMore(wasUp[x]);
            straight[x] = lesser(straight[x], up[x]);
        }
        for (std::int32_t x = run.begin; x < run.end; ++x) {
            upLeft[x] = oneMore(wasUpLeft[x]);
            upRight[x] = oneMore(wasUpRight[x]);
            diagonal[x] = lesser(diagonal[x], lesser(upLeft[x], upRight[x]));
        }
    }

private:
    Steps limit_;
    FrontRow before_;
    FrontRow here_;
};

} // namespace

DistanceTransform::DistanceTransform(const Coverage& coverage, Span visibleRows, std::uint8_t limit)
    : size_(coverage.size()),
      rows_(intersect({0, size_.height}, {visibleRows.begin - limit, visibleRows.end + limit})),
      limit_(limit),
      straight_(static_cast<std::size_t>(rows_.length()) * static_cast<std::size_t>(size_.width),
                static_cast<Steps>(limit + 1)),
      diagonal_(straight_)
{
    searchUpwards(coverage);
    searchDownwards(coverage);
    searchSideways(coverage);
}

void DistanceTransform::searchUpwards(const Coverage& coverage)
{
    Front front(size_.width, limit_, rows_.begin == 0);
    for (std::int32_t y = rows_.begin; y < rows_.end; ++y) {
        front.enterRow();
        coverage.forEachRun(y, {0, size_.width}, [&](Span run) {
            front.cover(run, straight_.data() + offset(y), diagonal_.data() + offset(y));
        });
    }
}

void DistanceTransform::searchDownwards(const Coverage& coverage)
{
    Front front(size_.width, limit_, rows_.end == size_.height);
    for (std::int32_t y = rows_.end - 1; y >= rows_.begin; --y) {
        front.enterRow();
        coverage.forEachRun(y, {0, size_.width}, [&](Span run) {
            front.cover(run, straight_.data() + offset(y), diagonal_.data() + offset(y));
        });
    }
}

// To both ends of each run, and to the edges of the surface, which are one step nearer than what lies beyond.
void DistanceTransform::searchSideways(const Coverage& coverage)
{
    for (std::int32_t y = rows_.begin; y < rows_.end; ++y) {
        Steps* const row = straight_.data() + offset(y);
        const std::int32_t toRow = std::min({y, size_.height - 1 - y, std::int32_t{limit_} + 1});
        const auto lower = [row](std::int32_t x, std::int32_t steps) {
            row[x] = static_cast<Steps>(std::min<std::int32_t>(row[x], steps));
        };
        coverage.forEachRun(y, {0, size_.width}, [&](Span run) {
            for (std::int32_t x = run.begin; x < run.end; ++x)
                row[x] = lesser(row[x], static_cast<Steps>(toRow));
            const std::int32_t reach = std::min<std::int32_t>(limit_ + 1, run.length());
            for (std::int32_t i = 0; i < reach; ++i) {
                const std::int32_t left = run.begin + i;
                const std::int32_t right = run.end - 1 - i;
                lower(left, std::min(i + 1, left));
                lower(right, std::min(i + 1, size_.width - 1 - right));
            }
        });
    }
}

} // namespace vela
