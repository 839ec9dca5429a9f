// What the look of a painted surface depends on, beside the pixels beneath it: the key of its cached
// pictures.
#pragma once

#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>

namespace vela {

// The same without copies, to look a picture up by.
struct SurfaceKeyView {
    const SurfaceStyle& style;
    const LoadedBitmaps& bitmaps;
    Rect rect;
    Rect area;         // what of it is painted
    std::uint8_t part; // tells apart what is painted of one surface
};

struct SurfaceKey {
    explicit SurfaceKey(const SurfaceKeyView& view)
        : style(view.style), bitmaps(view.bitmaps), rect(view.rect), area(view.area), part(view.part)
    {
    }
    friend bool operator==(const SurfaceKeyView& view, const SurfaceKey& key)
    {
        return view.rect == key.rect && view.area == key.area && view.part == key.part &&
               view.bitmaps == key.bitmaps && view.style == key.style;
    }

    SurfaceStyle style;
    LoadedBitmaps bitmaps;
    Rect rect;
    Rect area;
    std::uint8_t part;
};

} // namespace vela
