// How many pixels lie between a pixel and the outline of a surface, along rows and columns and along
// diagonals. Meant for small surfaces: it keeps two bytes for every pixel.
#pragma once

#include "vela/render/coverage.h"

#include <cstdint>
#include <vector>

namespace vela {

class EdgeSteps {
public:
    // The search gives up after limit steps (1 to 254) and then counts limit + 1. Only the visible rows are
    // searched from. A pixel outside the coverage, or outside the surface, is an outline.
    EdgeSteps(const Coverage& coverage, Span visibleRows, std::uint8_t limit);

    // One number per column, valid in covered pixels of visible rows: the least of left, right, up and down,
    // and the least of the four diagonals.
    const std::uint8_t* straight(std::int32_t y) const noexcept { return straight_.data() + offset(y); }
    const std::uint8_t* diagonal(std::int32_t y) const noexcept { return diagonal_.data() + offset(y); }

private:
    std::size_t offset(std::int32_t y) const noexcept
    {
        return static_cast<std::size_t>(y - rows_.begin) * static_cast<std::size_t>(width_);
    }
    void searchDown(const Coverage& coverage);
    void searchUp(const Coverage& coverage);

    Span rows_; // the visible ones and those their search can reach
    std::int32_t width_;
    std::uint8_t limit_;
    std::vector<std::uint8_t> straight_;
    std::vector<std::uint8_t> diagonal_;
};

} // namespace vela
