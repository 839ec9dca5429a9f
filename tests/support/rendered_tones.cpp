#include "tests/support/rendered_tones.h"

#include "vela/render/layers/paint_plan.h"
#include "vela/render/materials/material_constants.h"
#include "vela/render/materials/material_overlay.h"
#include "vela/render/pixels/bounded_cache.h"
#include "vela/render/surface/face_picture.h"

#include <array>
#include <vector>

namespace vela::testing {
namespace {

constexpr std::int32_t kSpot = 6; // pixels, both ways

struct Sample {
    Size size;
    Rect area; // in it, whole spots
    friend bool operator==(const Sample&, const Sample&) = default;
};
constexpr Sample kContainer{{324, 204}, {12, 12, 300, 180}};
constexpr Sample kFace{{132, 40}, {12, 8, 108, 24}};

using Pixels = std::vector<Pixel>;

PixelView viewOf(Pixels& pixels, Size size) { return {pixels.data(), size, size.width}; }

// As the painter composes a face. Borders and outlines lie outside the text's area, and so do the corners of
// whatever shape the surface has.
Pixels rendered(SurfaceStyle style, Size size, Color backdrop)
{
    style.shape = ShapeKind::Rect;
    style.drawBorder = style.showOutline = false;
    const Rect rect{0, 0, size.width, size.height};
    Pixels picture(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height),
                   premultiplied(backdrop, 255));
    const FaceSource source{style, {}, Coverage(style.shape, size), nullptr, [&](const LayerTarget& target) {
                                renderMaterialOverlay(
                                    materialConstants(style, rect, 0, PerformanceProfile::Full), target);
                            }};
    const PaintPlan plan = paintPlan(style, rect, std::nullopt);
    composeFace({viewOf(picture, size), {}}, plan.face(), source, Beneath::Picture);
    return picture;
}

Color spotAt(const PixelView& picture, std::int32_t left, std::int32_t top)
{
    std::array<unsigned, 3> sums{};
    for (std::int32_t y = top; y < top + kSpot; ++y) {
        for (std::int32_t x = left; x < left + kSpot; ++x) {
            for (std::size_t channel = 0; channel < sums.size(); ++channel)
                sums[channel] += picture.row(y)[x] >> 8 * channel & 0xFF;
        }
    }
    const auto mean = [](unsigned sum) {
        return static_cast<std::uint8_t>((sum + kSpot * kSpot / 2) / (kSpot * kSpot));
    };
    return rgb(mean(sums[2]), mean(sums[1]), mean(sums[0]));
}

ToneRange tonesIn(const PixelView& picture, const Rect& area)
{
    ToneRange tones = spotAt(picture, area.x, area.y);
    for (std::int32_t y = area.y; y < area.y + area.height; y += kSpot) {
        for (std::int32_t x = area.x; x < area.x + area.width; x += kSpot)
            tones.include(spotAt(picture, x, y));
    }
    return tones;
}

struct Key {
    SurfaceStyle style;
    Sample sample;
    Color backdrop;
    friend bool operator==(const Key&, const Key&) = default;
};

// Parts of a skin's controls are often styled alike.
ToneRange tonesOn(const SurfaceStyle& style, const Sample& sample, Color backdrop)
{
    static BoundedCache<Key, ToneRange> known(64);
    return known.ensure(Key{style, sample, backdrop}, [&] {
        Pixels picture = rendered(style, sample.size, backdrop);
        return tonesIn(viewOf(picture, sample.size), sample.area);
    });
}

ToneRange tonesOn(const SurfaceStyle& style, const Sample& sample, const ToneRange& backdrop)
{
    ToneRange tones = tonesOn(style, sample, backdrop.darkest);
    if (backdrop.lightest != backdrop.darkest)
        tones.include(tonesOn(style, sample, backdrop.lightest));
    return tones;
}

} // namespace

ToneRange renderedContainerTones(const SurfaceStyle& surface, const ToneRange& backdrop)
{
    return tonesOn(surface, kContainer, backdrop);
}

ToneRange renderedFaceTones(const SurfaceStyle& surface, const ToneRange& backdrop)
{
    return tonesOn(surface, kFace, backdrop);
}

} // namespace vela::testing
