// Which pixels of a surface a layer may touch: those of its shape or, on a surface shaped by a bitmap, those
// where the bitmap is opaque enough. Layers walk it as runs of pixels, row by row.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/pixels/simd.h"
#include "vela/render/shapes/shape_rows.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vela {

// A mask of any outline, as runs: built once per bitmap and size, walked by every layer and by the
// window region.
class RunMask {
public:
    explicit RunMask(Size size) : size_(size) { rowStarts_.push_back(0); }

    // Rows are added from the top; a row's runs from the left, apart from each other.
    void addRun(Span run) { runs_.push_back(run); }
    void endRow() { rowStarts_.push_back(runs_.size()); }

    Size size() const noexcept { return size_; }
    const Span* rowBegin(std::int32_t y) const noexcept { return runs_.data() + start(y); }
    const Span* rowEnd(std::int32_t y) const noexcept { return runs_.data() + start(y + 1); }

private:
    std::size_t start(std::int32_t y) const noexcept
    {
        return rowStarts_[std::min(static_cast<std::size_t>(y), rowStarts_.size() - 1)];
    }

    Size size_;
    std::vector<Span> runs_;
    std::vector<std::size_t> rowStarts_; // one more than rows
};

class Coverage {
public:
    Coverage(ShapeKind kind, Size size) noexcept : kind_(kind), size_(size) {}
    explicit Coverage(const RunMask& mask) noexcept : size_(mask.size()), mask_(&mask) {} // borrowed

    // The whole rectangle, for layers that follow the shape but are cut to it later.
    static Coverage uncut(ShapeKind kind, Size size) noexcept
    {
        Coverage coverage(kind, size);
        coverage.isCut_ = false;
        return coverage;
    }

    Size size() const noexcept { return size_; }
    // Outlines known as formulas; a bitmap's is not, and its shape() is Rect.
    bool isShape() const noexcept { return mask_ == nullptr; }
    ShapeKind shape() const noexcept { return kind_; }
    bool isCut() const noexcept { return isCut_; }

    // Calls visit(Span) for each covered run of the row, from the left, cut to the columns asked for.
    template <typename Visit>
    void forEachRun(std::int32_t y, Span columns, Visit&& visit) const
    {
        if (y < 0 || y >= size_.height)
            return;
        const auto visitCut = [&](Span run) {
            const Span cut = intersect(run, columns);
            if (!cut.empty())
                visit(cut);
        };
        if (mask_)
            std::for_each(mask_->rowBegin(y), mask_->rowEnd(y), visitCut);
        else
            visitCut(isCut_ ? shapeRow(kind_, size_, y) : Span{0, size_.width});
    }

private:
    ShapeKind kind_ = ShapeKind::Rect;
    Size size_;
    const RunMask* mask_ = nullptr;
    bool isCut_ = true;
};

inline void clearLayer(const LayerTarget& target) noexcept
{
    for (std::int32_t row = 0; row < target.view.size.height; ++row)
        simd::fillPixels(target.view.row(row), target.view.size.width, 0);
}

// Walks the visible part of a layer: paint(first pixel, columns, y) for each covered run, in the surface's
// coordinates, and transparent pixels everywhere else.
template <typename Paint>
void paintCovered(const LayerTarget& target, const Coverage& coverage, Paint&& paint)
{
    const Rect visible = target.visible();
    const Span columns{visible.x, visible.x + visible.width};
    for (std::int32_t row = 0; row < visible.height; ++row) {
        Pixel* const pixels = target.view.row(row);
        const std::int32_t y = visible.y + row;
        std::int32_t written = columns.begin;
        coverage.forEachRun(y, columns, [&](Span run) {
            simd::fillPixels(pixels + (written - columns.begin), run.begin - written, 0);
            paint(pixels + (run.begin - columns.begin), run, y);
            written = run.end;
        });
        simd::fillPixels(pixels + (written - columns.begin), columns.end - written, 0);
    }
}

// Makes the pixels transparent that are not covered.
inline void clearUncovered(const LayerTarget& target, const Coverage& coverage)
{
    paintCovered(target, coverage, [](Pixel*, Span, std::int32_t) {});
}

} // namespace vela
