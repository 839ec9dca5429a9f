// Finished material overlays, cached by value: a surface that did not change is rendered once, on the
// graphics card or in software, and only composited when it is painted again.
#pragma once

#include "vela/render/materials/material_constants.h"
#include "vela/render/pixels/bounded_cache.h"
#include "vela/render/pixels/pixel_buffer.h"

#include <utility>
#include <vector>

namespace vela {

class MaterialOverlayCache {
public:
    explicit MaterialOverlayCache(std::size_t mostPixels) : mostPixels_(mostPixels), overlays_(mostPixels) {}

    // The whole surface's overlay, rows without gaps: what render(PixelView) wrote when it was first asked
    // for. It returns false when it could not; then the view is empty and the next call tries again. Empty as
    // well, and not rendered, for a surface that is larger than all the room. Valid until the next call. A
    // moving light is rendered again into the same place whenever its phase is new.
    template <typename Render>
    PixelView ensure(const MaterialConstants& constants, Render&& render)
    {
        if (constants.geometry.x * constants.geometry.y > static_cast<float>(mostPixels_))
            return {};
        MaterialConstants still = constants;
        const float phase = std::exchange(still.material4.x, 0.0F);
        Overlay& overlay = overlays_.ensure(still, [&constants] { return Overlay(constants); });
        if (overlay.phase != phase) {
            overlay.phase = Overlay::kNotRendered;
            if (!render(overlay.view()))
                return {};
            overlay.phase = phase;
            ++rendered_;
        }
        return overlay.view();
    }

    // For tests and benchmarks: how many overlays there are, and how many were rendered since the start. A
    // repaint of what was painted before adds none.
    std::size_t size() const noexcept { return overlays_.size(); }
    std::size_t rendered() const noexcept { return rendered_; }

private:
    struct Overlay {
        static constexpr float kNotRendered = -1; // phases are never negative

        explicit Overlay(const MaterialConstants& constants)
            : size{static_cast<std::int32_t>(constants.geometry.x),
                   static_cast<std::int32_t>(constants.geometry.y)},
              pixels(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height))
        {
        }
        PixelView view() noexcept { return {pixels.data(), size, size.width}; }

        Size size;
        std::vector<Pixel> pixels;
        float phase = kNotRendered;
    };
    struct PixelCount {
        std::size_t operator()(const Overlay& overlay) const noexcept { return overlay.pixels.size(); }
    };

    std::size_t mostPixels_;
    BoundedCache<MaterialConstants, Overlay, PixelCount> overlays_;
    std::size_t rendered_ = 0;
};

} // namespace vela
