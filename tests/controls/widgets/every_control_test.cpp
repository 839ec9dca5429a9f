// What holds for the controls of every kind, whatever their records say.
#include "tests/controls/widgets/every_control.h"
#include "tests/support/painted.h"
#include "tests/support/skin_text.h"
#include "vela/controls/tree/damage.h"
#include "vela/render/layers/paint_plan.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace vela {
namespace {

using testing::EveryControl;
using testing::forEachFieldOf;

#ifndef _WIN32 // there the product's renderer paints
TEST(EveryControlTest, NoLengthOfASkinOverflowsOrCostsTime)
{
    for (const std::int32_t length : {INT32_MIN, -1, INT32_MAX}) {
        StyleSheet sheet;
        forEachFieldOf(sheet, [length](FieldKind kind, void* place) {
            if (kind == FieldKind::Length || kind == FieldKind::Integer)
                *static_cast<std::int32_t*>(place) = length;
            else if (kind == FieldKind::InsetSides)
                *static_cast<Insets*>(place) = {length, length, length, length};
            else if (kind == FieldKind::Boolean)
                *static_cast<bool*>(place) = true;
        });
        const StyleSheet asRead = sheet;
        for (const std::int32_t dpi : {96, 240}) {
            EveryControl all;
            all.window.root.rescale(dpi);
            all.apply(sheet);
            for (const std::int32_t side : {0, 1, 300, 32767}) {
                all.window.root.setBounds({0, 0, side, side});
                all.forEach([&](Control& control) {
                    control.setBounds({side / 2, side / 2, side, side});
                    control.setBounds({0, 0, side, side});
                    (void)control.minimumSize();
                    (void)control.contentBounds();
                    (void)control.containsLocal({side / 2, side / 2});
                    (void)control.caretRect();
                    (void)control.accessibleInfo();
                    (void)control.focusBounds();
                    all.window.focused = &control;
                    control.invalidate(InvalidationReason::State);
                    control.paint(nullptr, {7, 9});
                });
                (void)grownDamage(all.window.root, {{0, 0, 5, 5}});
                (void)static_cast<const TooltipView&>(*findControl(all.window.root, L"tooltip"))
                    .preferredSize();
                (void)static_cast<const DesignedPopup&>(*findControl(all.window.root, L"popup"))
                    .missingHeight();
                (void)static_cast<const ChromeTitleBar&>(*findControl(all.window.root, L"bar"))
                    .preferredHeight();
            }
        }
        EXPECT_EQ(sheet, asRead);
    }
}

struct SurfaceOf {
    std::optional<SurfaceCall> operator()(const SurfaceCall& call) const { return call; }
    std::optional<SurfaceCall> operator()(const ControlSurfaceCall& call) const
    {
        return SurfaceCall{call.rect, call.style};
    }
    std::optional<SurfaceCall> operator()(const ProgressFillCall& call) const
    {
        return SurfaceCall{call.track, call.fill};
    }
    template <class Other>
    std::optional<SurfaceCall> operator()(const Other&) const
    {
        return std::nullopt;
    }
};

// Its own and those of the controls that it is made of.
std::vector<SurfaceCall> toldSurfaces(const Control& control)
{
    std::vector<SurfaceCall> told;
    const Rect at = control.windowRect().value_or(Rect{});
    control.visitSurfaces([&](const PaintedSurface& surface) {
        if (surface.isShown)
            told.push_back({movedBy(surface.rect, {at.x, at.y}), surface.style});
    });
    for (const Control* child : control.children()) {
        if (!child->isVisible())
            continue;
        const std::vector<SurfaceCall> below = toldSurfaces(*child);
        told.insert(told.end(), below.begin(), below.end());
    }
    return told;
}

TEST(EveryControlTest, TellsEverySurfaceThatItPaints)
{
    StyleSheet sheet;
    forEachFieldOf(sheet, [](FieldKind kind, void* place) {
        if (kind == FieldKind::Boolean)
            *static_cast<bool*>(place) = true;
    });
    EveryControl all;
    all.apply(sheet);
    int found = 0;
    all.forEach([&](Control& control) {
        for (int state = 0; state < 8; ++state) {
            control.setHot((state & 1) != 0);
            control.setPressed((state & 2) != 0);
            control.setEnabled((state & 4) == 0);
            const std::vector<SurfaceCall> told = toldSurfaces(control);
            const Rect damage = movedBy(control.damageBounds(), {control.bounds().x, control.bounds().y});
            for (const PaintCall& call : testing::paintedBy(control)) {
                const std::optional<SurfaceCall> surface = std::visit(SurfaceOf(), call);
                if (!surface)
                    continue;
                ++found;
                const Rect reach = paintedBounds(surface->style, surface->rect);
                EXPECT_TRUE(std::any_of(told.begin(), told.end(),
                                        [&](const SurfaceCall& known) {
                                            return known.rect == surface->rect &&
                                                   paintedBounds(known.style, known.rect) == reach;
                                        }))
                    << narrowed(control.id()) << " state " << state;
                const bool isClipped = control.id() == L"field"; // it clips what stands in it
                EXPECT_TRUE(isClipped || united(damage, reach) == damage)
                    << narrowed(control.id()) << " state " << state;
            }
        }
    });
    EXPECT_GT(found, 8 * 15);
}
#endif

} // namespace
} // namespace vela
