// The bounds of a pixel layer, as a few rectangles: outside of them it is transparent, and nothing is made or
// composited.
#pragma once

#include "vela/render/layers/paint_plan.h"

#include <array>
#include <cstddef>

namespace vela {

class LayerBounds {
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

// Disjoint, in the layer's own coordinates. Strokes and an inner shadow on a large surface are frames along
// its edges.
LayerBounds layerBounds(const PaintStep& step, const Coverage& coverage, const SurfaceStyle& style);

// The same for a layer of the halo, around what needs no painting because an opaque face hides it.
LayerBounds haloBounds(const PaintStep& step, const Rect& hidden);

// What an opaque face of the shape surely covers, in its own coordinates. Empty where it is so small that to
// treat it apart takes longer than to treat it like the rest.
Rect solidBox(ShapeKind kind, Size size, SurfaceEdge edge);

} // namespace vela
