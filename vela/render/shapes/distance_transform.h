// The distance transform of a surface's coverage: how far its pixels lie from its outline, in whole steps
// along rows and columns and, apart from those, along diagonals. Meant for small surfaces: it takes two bytes
// for every pixel.
#pragma once

#include "vela/render/shapes/coverage.h"

#include <cstdint>
#include <vector>

namespace vela {

class DistanceTransform {
public:
    // The search gives up after limit steps (1 to 254) and then counts limit + 1. Only the visible rows are
    // searched from. A pixel outside the coverage, or outside the surface, is beyond the outline.
    DistanceTransform(const Coverage& coverage, Span visibleRows, std::uint8_t limit);

    // One number per column, valid in covered pixels of visible rows. Straight is the least number of steps
    // left, right, up and down to a pixel beyond the outline, and of steps that stay within the surface.
    const std::uint8_t* straight(std::int32_t y) const noexcept { return straight_.data() + offset(y); }
    const std::uint8_t* diagonal(std::int32_t y) const noexcept { return diagonal_.data() + offset(y); }

private:
    std::size_t offset(std::int32_t y) const noexcept
    {
        return static_cast<std::size_t>(y - rows_.begin) * static_cast<std::size_t>(size_.width);
    }
    void searchUpwards(const Coverage& coverage);
    void searchDownwards(const Coverage& coverage);
    void searchSideways(const Coverage& coverage);

    Size size_;
    Span rows_; // the visible ones and those their search can reach
    std::uint8_t limit_;
    std::vector<std::uint8_t> straight_;
    std::vector<std::uint8_t> diagonal_;
};

} // namespace vela
