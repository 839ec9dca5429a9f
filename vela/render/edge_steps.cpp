#include "vela/render/edge_steps.h"

#include <algorithm>
#include <utility>

namespace vela {
namespace {

using Steps = std::uint8_t;

// Steps to the outline for each column of one row, when the search goes towards the row before: straight on
// and along both diagonals. They follow from those of the row before, one more in a covered pixel, none in
// any other, so a whole surface is searched in one walk.
class Front {
public:
    // Outside the surface is outline. When the walk starts inside it, what lies before is out of reach.
    Front(std::int32_t width, Steps limit, bool atSurfaceEdge)
        : limit_(limit), stride_(static_cast<std::size_t>(width) + 2), storage_(2 * kDirections * stride_)
    {
        if (!atSurfaceEdge)
            for (std::size_t direction = 0; direction < kDirections; ++direction)
                std::fill_n(next(direction), width, beyond());
    }

    void enterRow()
    {
        std::swap(now_, next_);
        std::fill_n(storage_.begin() + static_cast<std::ptrdiff_t>(next_ * kDirections * stride_),
                    kDirections * stride_, Steps{0});
    }

    void cover(Span run)
    {
        for (std::size_t direction = 0; direction < kDirections; ++direction) {
            const Steps* before = now(direction) + static_cast<std::ptrdiff_t>(direction) - 1;
            Steps* here = next(direction);
            for (std::int32_t x = run.begin; x < run.end; ++x)
                here[x] = static_cast<Steps>(std::min(before[x], limit_) + 1);
        }
    }

    Steps straight(std::int32_t x) const { return next(1)[x]; }
    Steps diagonal(std::int32_t x) const { return std::min(next(0)[x], next(2)[x]); }
    Steps beyond() const { return static_cast<Steps>(limit_ + 1); }

private:
    static constexpr std::size_t kDirections =
        3; // the column to the left, the same one, the one to the right

    // One column of outline stands on either side of the surface.
    const Steps* now(std::size_t direction) const
    {
        return storage_.data() + (now_ * kDirections + direction) * stride_ + 1;
    }
    Steps* next(std::size_t direction)
    {
        return storage_.data() + (next_ * kDirections + direction) * stride_ + 1;
    }
    const Steps* next(std::size_t direction) const
    {
        return storage_.data() + (next_ * kDirections + direction) * stride_ + 1;
    }

    Steps limit_;
    std::size_t stride_;
    std::size_t now_ = 1;
    std::size_t next_ = 0;
    std::vector<Steps> storage_;
};

} // namespace

EdgeSteps::EdgeSteps(const Coverage& coverage, Span visibleRows, std::uint8_t limit)
    : rows_(intersect({0, coverage.size().height}, {visibleRows.begin - limit, visibleRows.end + limit})),
      width_(coverage.size().width), limit_(limit),
      straight_(static_cast<std::size_t>(rows_.length()) * static_cast<std::size_t>(width_)),
      diagonal_(straight_.size())
{
    searchDown(coverage);
    searchUp(coverage);
}

// Looks up and to both sides.
void EdgeSteps::searchDown(const Coverage& coverage)
{
    Front front(width_, limit_, rows_.begin == 0);
    for (std::int32_t y = rows_.begin; y < rows_.end; ++y) {
        front.enterRow();
        Steps* const straight = straight_.data() + offset(y);
        Steps* const diagonal = diagonal_.data() + offset(y);
        coverage.forEachRun(y, {0, width_}, [&](Span run) {
            front.cover(run);
            for (std::int32_t x = run.begin; x < run.end; ++x) {
                const std::int32_t side = std::min(x - run.begin + 1, run.end - x);
                straight[x] = static_cast<Steps>(std::min<std::int32_t>(side, front.straight(x)));
                diagonal[x] = front.diagonal(x);
            }
        });
    }
}

// Looks down.
void EdgeSteps::searchUp(const Coverage& coverage)
{
    Front front(width_, limit_, rows_.end == coverage.size().height);
    for (std::int32_t y = rows_.end - 1; y >= rows_.begin; --y) {
        front.enterRow();
        Steps* const straight = straight_.data() + offset(y);
        Steps* const diagonal = diagonal_.data() + offset(y);
        coverage.forEachRun(y, {0, width_}, [&](Span run) {
            front.cover(run);
            for (std::int32_t x = run.begin; x < run.end; ++x) {
                straight[x] = std::min(straight[x], front.straight(x));
                diagonal[x] = std::min(diagonal[x], front.diagonal(x));
            }
        });
    }
}

} // namespace vela
