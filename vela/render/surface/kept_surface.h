// What the look of a painted surface depends on, beside the pixels beneath it: the key of its kept pictures.
#pragma once

#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>

namespace vela {

struct SurfaceView {
    const SurfaceStyle& style;
    const LoadedBitmaps& bitmaps;
    Rect rect;
    Rect area;         // what of it is painted
    std::uint8_t part; // tells apart what is painted of one surface
};

struct KeptSurface {
    explicit KeptSurface(const SurfaceView& view)
        : style(view.style), bitmaps(view.bitmaps), rect(view.rect), area(view.area), part(view.part)
    {
    }
    friend bool operator==(const SurfaceView& view, const KeptSurface& kept)
    {
        return view.rect == kept.rect && view.area == kept.area && view.part == kept.part &&
               view.bitmaps == kept.bitmaps && view.style == kept.style;
    }

    SurfaceStyle style;
    LoadedBitmaps bitmaps;
    Rect rect;
    Rect area;
    std::uint8_t part;
};

} // namespace vela
