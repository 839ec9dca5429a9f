// Where a surface's material layer comes from: the graphics card, a picture kept from the paint before, or
// software. UI thread only.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/render/materials/material_constants.h"
#include "vela/render/pixels/pixel_buffer.h"
#include "vela/theme/records/surface_style.h"

#include <cstddef>
#include <memory>

namespace vela {

// One surface's overlay in one paint: the light where it is now, the machine as busy as it may be.
class MaterialSource {
public:
    MaterialSource(HDC dc, const Rect& rect, const SurfaceStyle& style);

    // Writes the visible part, not cut to any shape.
    void write(const LayerTarget& target) const;

private:
    MaterialConstants constants_;
    std::shared_ptr<OwnedPixels> whole_; // null: software renders what is asked for
};

// How many overlays with a moving light were rendered since the start, for tests and benchmarks.
std::size_t movingOverlaysRendered() noexcept;

} // namespace vela
