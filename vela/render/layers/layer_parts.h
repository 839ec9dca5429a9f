// Which parts of a pixel layer are worth making and compositing: outside of them it is transparent.
#pragma once

#include "vela/render/layers/paint_plan.h"

#include <array>
#include <cstddef>

namespace vela {

class LayerParts {
public:
    const Rect* begin() const noexcept { return rects_.data(); }
    const Rect* end() const noexcept { return rects_.data() + count_; }
    void add(const Rect& rect) noexcept
    {
        if (!isEmpty(rect))
            rects_[count_++] = rect;
    }

private:
    std::array<Rect, 4> rects_;
    std::size_t count_ = 0;
};

// Disjoint, in the layer's own coordinates. An inner shadow on a large surface is a frame along its edges.
LayerParts layerParts(const PaintStep& step, const Coverage& coverage, const SurfaceStyle& style);

} // namespace vela
