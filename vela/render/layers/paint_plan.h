// What painting a surface consists of: the layers its style asks for, in painting order, each with its place.
// The painter only executes the list.
#pragma once

#include "vela/geometry.h"
#include "vela/render/shapes/coverage.h"
#include "vela/theme/records/surface_style.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace vela {

enum class SurfaceLayer : std::uint8_t {
    Glow,
    Shadow,
    Gradient,
    Fill,
    Bitmap,
    Border,
    Material,
    SpatialShading,
    InnerShadow,
    Noise,
    Outline,
    Cut, // of all layers since the halo, by an antialiased outline
};

// One layer at its place. Colour, alpha and pen width are those of layers that have just one of each.
struct PaintStep {
    SurfaceLayer layer = SurfaceLayer::Fill;
    Rect rect;
    Color color = 0;
    std::uint8_t alpha = 255;  // Glow, Shadow
    std::int32_t penWidth = 0; // Border, Outline
    friend bool operator==(const PaintStep&, const PaintStep&) = default;
};

// How a surface ends: at the very pixels of its mask, or antialiased.
enum class SurfaceEdge : std::uint8_t { Exact, Antialiased };

// How much of what lies beneath it a surface's bitmap hides; None also when it could not be loaded.
enum class BitmapCover : std::uint8_t { None, Partial, Full };

class PaintPlan {
public:
    static constexpr std::int32_t kMostGlowRings = 8;

    const PaintStep* begin() const noexcept { return steps_.data(); }
    const PaintStep* end() const noexcept { return steps_.data() + count_; }
    std::size_t size() const noexcept { return count_; }
    void add(const PaintStep& step) noexcept { steps_[count_++] = step; }

    // The halo, glow and shadow, lies around the face, which is all other layers.
    std::span<const PaintStep> halo() const noexcept { return {steps_.data(), haloSize_}; }
    std::span<const PaintStep> face() const noexcept
    {
        return {steps_.data() + haloSize_, count_ - haloSize_};
    }
    void endHalo() noexcept { haloSize_ = count_; }
    // Whether nothing can be seen through the face.
    bool isOpaque() const noexcept { return isOpaque_; }
    void setOpaque(bool opaque) noexcept { isOpaque_ = opaque; }

private:
    static constexpr std::size_t kOtherLayers = 10; // gradient and fill exclude each other
    std::array<PaintStep, kMostGlowRings + kOtherLayers> steps_;
    std::size_t count_ = 0;
    std::size_t haloSize_ = 0;
    bool isOpaque_ = false;
};

// The clip is the device context's clip box: none when it has no clip. Nothing is planned for a surface that
// does not meet it, nor a layer.
PaintPlan paintPlan(const SurfaceStyle& style, const Rect& rect, const std::optional<Rect>& clip,
                    BitmapCover bitmap = BitmapCover::None, SurfaceEdge edge = SurfaceEdge::Exact);

// Whether the layer is one colour that hides what lies beneath it.
constexpr bool isPlainLayer(SurfaceLayer layer) noexcept
{
    return layer == SurfaceLayer::Fill || layer == SurfaceLayer::Border || layer == SurfaceLayer::Outline;
}

// The rectangle around all that the surface paints, whatever is seen of it: its glow and its shadow lie
// outside its own. Empty when it paints nothing.
Rect paintedBounds(const SurfaceStyle& style, const Rect& rect);

// Writes the visible part of a layer, of any but bitmap, material and cut. The coverage has the step's size;
// surfaceOrigin is the surface's position in its window.
void fillLayer(const LayerTarget& target, const Coverage& coverage, const PaintStep& step,
               const SurfaceStyle& style, Point surfaceOrigin);

} // namespace vela
