// What the picture of a surface's face depends on.
#pragma once

#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/render/layers/paint_plan.h"
#include "vela/render/pixels/picture_store.h"
#include "vela/render/pixels/pixel_buffer.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>

namespace vela {

// All but the style, which a look-up does not copy.
struct FaceKeyValues {
    LoadedBitmaps bitmaps;
    Size size;
    Point origin; // in the window, for textures that are continuous across it; 0, 0 for others
    PerformanceProfile profile;
    SurfaceEdge edge;
    SurfaceLayer first; // of its layers, where the picture has not all of them
    friend bool operator==(const FaceKeyValues&, const FaceKeyValues&) = default;
};

struct FaceKeyView {
    const SurfaceStyle& style;
    const FaceKeyValues& values;

    std::size_t hash() const noexcept
    {
        HashSum sum;
        for (const Color color : {style.fill, style.border, style.gradientStart, style.gradientEnd,
                                  style.innerShadowColor, style.materialTint, style.outline})
            sum.add(color);
        sum.add(static_cast<std::uint64_t>(style.shape) << 16 |
                static_cast<std::uint64_t>(style.material) << 8 | style.opacity);
        for (const std::int32_t number :
             {values.size.width, values.size.height, values.origin.x, values.origin.y})
            sum.add(static_cast<std::uint32_t>(number));
        return sum.add(style.noiseSeed).add(static_cast<std::uint64_t>(values.first)).value();
    }
};

struct FaceKey {
    explicit FaceKey(const FaceKeyView& view) : style(view.style), values(view.values) {}
    friend bool operator==(const FaceKeyView& view, const FaceKey& key)
    {
        return view.values == key.values && view.style == key.style;
    }

    SurfaceStyle style;
    FaceKeyValues values;
};

// Of PictureStore.
struct FacePictures {
    using Key = FaceKey;
    using Value = OwnedPixels;
    static std::size_t weigh(const OwnedPixels& picture) noexcept { return picture.bytes(); }
};

} // namespace vela
