#include "fuzz/skin_painting.h"

#include "app/dialogs/toolkit_texts.h"
#include "tests/controls/tree/fake_window.h"
#include "vela/controls/widgets/check_box.h"
#include "vela/controls/widgets/chrome_title_bar.h"
#include "vela/controls/widgets/designed_popup.h"
#include "vela/controls/widgets/drag_area.h"
#include "vela/controls/widgets/label.h"
#include "vela/controls/widgets/progress_bar.h"
#include "vela/controls/widgets/text_input.h"
#include "vela/controls/widgets/themed_button.h"
#include "vela/controls/widgets/tooltip.h"
#include "vela/render/bitmaps/bitmap_geometry.h"
#include "vela/render/layers/layer_bounds.h"
#include "vela/render/layers/paint_plan.h"
#include "vela/render/materials/material_overlay.h"
#include "vela/render/paint/paint_recorder.h"
#include "vela/render/shapes/antialias.h"
#include "vela/render/shapes/shape_rects.h"
#include "vela/render/surface/face_picture.h"
#include "vela/theme/fields/record_scale.h"

#include <algorithm>
#include <memory>
#include <variant>
#include <vector>

namespace vela {
namespace {

constexpr std::int32_t kWindow = 64; // the side of what is seen of a surface

struct Look {
    Rect rect;
    SurfaceStyle style;
};

void addLook(std::vector<Look>& looks, const Rect& rect, const SurfaceStyle& style)
{
    const auto same = [&](const Look& look) { return look.style == style && look.rect == rect; };
    if (std::none_of(looks.begin(), looks.end(), same))
        looks.push_back({rect, style});
}

void addLook(std::vector<Look>& looks, const SurfaceCall& call) { addLook(looks, call.rect, call.style); }
void addLook(std::vector<Look>& looks, const ControlSurfaceCall& call)
{
    addLook(looks, call.rect, call.style);
}
void addLook(std::vector<Look>& looks, const ProgressFillCall& call)
{
    addLook(looks, call.track, call.fill);
}
template <typename Other>
void addLook(std::vector<Look>&, const Other&)
{
}

const TintedBitmap& plate()
{
    static const TintedBitmap bitmap(
        {{3, 2}, {0xFF102030, 0x80FFFFFF, 0, 0xFFFFFFFF, 0x01000000, 0xFF00FF00}}, {});
    return bitmap;
}

// Halo and face within the window, which lies in the surface's own coordinates.
void makePixels(const Look& look, const Rect& window, SurfaceEdge edge)
{
    static std::vector<Pixel> pixels(kWindow * kWindow);
    const auto targetOf = [](const Rect& seen) {
        return LayerTarget{{pixels.data(), sizeOf(seen), seen.width}, {seen.x, seen.y}};
    };
    const SurfaceStyle& style = look.style;
    const Size size = sizeOf(look.rect);
    const TintedBitmap* const bitmap = style.image ? &plate() : nullptr;
    const BitmapCover cover =
        bitmap ? coverOn(*bitmap, bitmapPlacement(style, size), size) : BitmapCover::None;
    const Rect clip = movedBy(window, {look.rect.x, look.rect.y});
    const PaintPlan plan = paintPlan(style, look.rect, clip, cover, edge);
    const Rect hidden =
        plan.isOpaque() ? movedBy(solidBox(style.shape, size, edge), {look.rect.x, look.rect.y}) : Rect{};
    for (const PaintStep& step : plan.halo())
        for (const Rect& part : haloBounds(step, hidden))
            if (const Rect seen = intersection(part, window); !isEmpty(seen))
                fillLayer(targetOf(seen), {style.shape, sizeOf(step.rect)}, step, style, {});
    const Rect seen = intersection(window, {0, 0, size.width, size.height});
    if (isEmpty(seen) || plan.face().empty())
        return;
    const bool isCut = plan.face().back().layer == SurfaceLayer::Cut;
    const FaceSource source{style,
                            {look.rect.x, look.rect.y},
                            isCut ? Coverage::uncut(style.shape, size) : Coverage(style.shape, size),
                            bitmap,
                            [&look](const LayerTarget& target) {
                                renderMaterialOverlay(
                                    materialConstants(look.style, look.rect, 0.4F, PerformanceProfile::Full),
                                    target);
                            }};
    const std::size_t layers = plan.face().size() - (isCut ? 1 : 0);
    composeFace(targetOf(seen), plan.face().first(layers), source, Beneath::Nothing);
    if (isCut)
        cutToShape(targetOf(seen), style.shape, {0, 0, size.width, size.height});
}

void makePixels(const Look& look)
{
    const Size size = sizeOf(look.rect);
    for (const Point corner : {Point{0, 0}, Point{size.width / 2, size.height / 2}}) {
        for (const SurfaceEdge edge : {SurfaceEdge::Exact, SurfaceEdge::Antialiased})
            makePixels(look, {corner.x, corner.y, kWindow, kWindow}, edge);
        visitStroke(look.style.shape, size, look.style.outlineWidth, {corner.x, corner.y, kWindow, kWindow},
                    [](const Rect&) {});
        hitSurface(look.style, look.style.shape, size, corner, {&plate(), nullptr});
    }
}

// One control of every kind, in all the states that show.
void fillWindow(Panel& root, const StyleSheet& styles)
{
    std::int32_t y = 0;
    const auto add = [&root, &y ](auto control) -> auto&
    {
        control->setBounds({10, y, 300, 30});
        y += 30;
        return root.addControl(std::move(control));
    };
    root.setSurface(styles.find<PanelStyle>(kDefaultVariant).surface);
    add(std::make_unique<Label>(L"label", Rect{}, L"Label")).setHint(L"Hint");
    auto& button = add(std::make_unique<ThemedButton>(L"button", Rect{}, L"Button"));
    button.setIcon(Icon::Check);
    button.setHot(true);
    add(std::make_unique<ThemedButton>(L"pressed", Rect{}, L"Pressed")).setPressed(true);
    add(std::make_unique<ThemedButton>(L"active", Rect{}, L"Active")).setActive(true);
    add(std::make_unique<ThemedButton>(L"disabled", Rect{}, L"Disabled")).setEnabled(false);
    add(std::make_unique<CheckBox>(L"check", Rect{}, L"Check box")).setChecked(true);
    add(std::make_unique<ProgressBar>(L"progress", Rect{})).setValue(40);
    auto& field = add(std::make_unique<TextInput>(L"field", Rect{}, L"C:\\Programs"));
    field.setAttachments({{L"1", L"file.txt"}, {L"2", L"notes"}});
    add(std::make_unique<TextInput>(L"empty", Rect{}, L"")).setPlaceholder(L"Placeholder");
    add(std::make_unique<DragArea>(L"drag", Rect{}));
    add(std::make_unique<ChromeTitleBar>(L"title", Rect{}, L"Title", Theme{})).addHeaderAction(1, L"Help");
    auto& tip = add(std::make_unique<TooltipView>(L"tip", Rect{}));
    tip.setText(L"A tip of several words");
    auto& popup = add(std::make_unique<DesignedPopup>(L"popup", Rect{}));
    popup.setBounds({0, 40, 690, 380});
    popup.setTitle(L"Title");
    popup.setIconText(L"!");
    popup.setMessage(L"A message of some words that wraps in a narrow popup");
    popup.setActions({{L"Yes", L"yes", true}, {L"No", L"no", false}});
    popup.setClosable(true);
    for (Control* const control : root.children())
        control->setAnchors(Anchors::Left | Anchors::Right);
    button.setStyleKey(L"primary");
}

} // namespace

void paintWith(const StyleSheet& styles)
{
    setToolkitTexts(setup::kToolkitTexts);
    std::vector<Look> looks;
    for (const std::int32_t dpi : {96, 240}) {
        FakeWindow window({690, 420});
        fillWindow(window.root, styles);
        window.focused = window.root.children()[1]; // the first button: its ring is seen
        window.root.rescale(dpi);
        styleTree(window.root, styles);
        for (const Size size : {Size{690, 420}, Size{1, 1}, Size{40, 2000}}) {
            window.root.setBounds({0, 0, size.width, size.height});
            for (Control* const control : window.root.children()) {
                control->cachedMinimumSize();
                control->damageBounds();
                control->containsLocal({3, 3});
            }
            const PaintRecorder recorder;
            window.root.paint(nullptr, {});
            for (const PaintCall& call : recorder.calls())
                std::visit([&](const auto& painted) { addLook(looks, painted); }, call);
        }
    }
    std::for_each(looks.begin(), looks.end(), [](const Look& look) { makePixels(look); });
}

} // namespace vela
