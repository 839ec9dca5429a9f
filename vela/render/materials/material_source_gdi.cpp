#include "vela/render/materials/material_source_gdi.h"

#include "vela/render/materials/material_gpu_d3d11.h"
#include "vela/render/materials/material_light.h"
#include "vela/render/materials/material_overlay.h"
#include "vela/render/materials/material_overlay_gdi.h"
#include "vela/render/pixels/picture_store.h"

#include <cstring>
#include <optional>

namespace vela {
namespace {

// Overlays whose light moves, by their constants without its place: each step of the animation is rendered
// into the same picture.
struct MovingOverlays {
    struct Key {
        MaterialConstants constants;
        std::size_t hash() const noexcept
        {
            std::uint64_t words[sizeof constants / sizeof(std::uint64_t)];
            std::memcpy(words, &constants, sizeof constants);
            HashSum sum;
            for (const std::uint64_t word : words)
                sum.add(word);
            return sum.value();
        }
        friend bool operator==(const Key&, const Key&) = default;
    };
    struct Value {
        explicit Value(Size size) : lit(size) {}
        OwnedPixels lit;
        std::optional<OwnedPixels> unlit; // in software: what the light is added to
        float phase = -1;                 // of what is lit; phases are never negative
    };
    static std::size_t weigh(const Value& value) noexcept { return 2 * value.lit.bytes(); }
};

Size sizeOf(const MaterialConstants& constants) noexcept
{
    return {static_cast<std::int32_t>(constants.geometry.x), static_cast<std::int32_t>(constants.geometry.y)};
}

void render(const MaterialConstants& constants, MovingOverlays::Value& overlay)
{
    if (renderMaterialOnGpu(constants, overlay.lit.view()))
        return;
    if (!overlay.unlit)
        renderMaterialOverlay(withoutLight(constants), {overlay.unlit.emplace(sizeOf(constants)).view(), {}});
    addLight(constants, overlay.unlit->view(), overlay.lit.view());
}

std::size_t movingRendered = 0;

std::shared_ptr<OwnedPixels> movingOverlay(const MaterialConstants& constants)
{
    MovingOverlays::Key still{constants};
    still.constants.material4.x = 0;
    const auto overlay = pictureStore().ensure<MovingOverlays>(
        still, [&constants] { return std::make_shared<MovingOverlays::Value>(sizeOf(constants)); });
    if (const float phase = constants.material4.x; overlay->phase != phase) {
        overlay->phase = -1;
        render(constants, *overlay);
        ++movingRendered;
        overlay->phase = phase;
    }
    return {overlay, &overlay->lit};
}

// Null where there is none, or no graphics card to render it.
std::shared_ptr<OwnedPixels> wholeOverlay(const MaterialConstants& constants, Size size)
{
    if (std::int64_t{size.width} * size.height > kMostOverlayPixels)
        return nullptr;
    if (hasMovingLight(constants))
        return movingOverlay(constants);
    if (!hasMaterialGpu())
        return nullptr;
    auto picture = std::make_shared<OwnedPixels>(size);
    return renderMaterialOnGpu(constants, picture->view()) ? picture : nullptr;
}

} // namespace

MaterialSource::MaterialSource(HDC dc, const Rect& rect, const SurfaceStyle& style)
    : constants_(currentMaterialConstants(dc, style, rect)),
      whole_(wholeOverlay(constants_, vela::sizeOf(rect)))
{
}

void MaterialSource::write(const LayerTarget& target) const
{
    if (whole_)
        copyPixels(LayerTarget{whole_->view(), {}}.part(target.visible()).view, target.view);
    else
        renderMaterialOverlay(constants_, target);
}

std::size_t movingOverlaysRendered() noexcept { return movingRendered; }

} // namespace vela
