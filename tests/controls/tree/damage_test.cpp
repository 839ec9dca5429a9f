#include "vela/controls/tree/damage.h"

#include "tests/controls/tree/fake_window.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

// With a surface at rest and one under the pointer.
struct Glowing : Control {
    using Control::Control;
    const SurfaceStyle* paintedSurface() const override { return isHot() ? &hot : &normal; }
    void visitSurfaces(const SurfaceVisitor& visit) const override
    {
        visit({normal, localBounds(), !isHot()});
        visit({hot, localBounds(), isHot()});
    }
    void glow(std::int32_t radius)
    {
        changeReach([this, radius] {
            normal.showGlow = radius > 0;
            normal.glowRadius = radius;
        });
    }

    SurfaceStyle normal;
    SurfaceStyle hot;
};

class DamageTest : public ::testing::Test {
protected:
    Glowing& add(Rect bounds, std::int32_t glow, Panel* panel = nullptr)
    {
        auto& made = (panel ? *panel : window.root).addControl(std::make_unique<Glowing>(L"g", bounds));
        made.glow(glow);
        window.invalidated.clear();
        return made;
    }
    std::vector<Rect> grown(std::vector<Rect> damage) { return grownDamage(window.root, std::move(damage)); }

    FakeWindow window{{400, 300}};
    using Rects = std::vector<Rect>;
};

TEST_F(DamageTest, AControlsDamageReachesAsFarAsItMayPaint)
{
    Glowing& control = add({50, 50, 100, 40}, 0);
    control.hot.showShadow = true;
    control.hot.shadowOffsetX = -5;
    control.hot.shadowOffsetY = 9;
    // Also while it is not hot: what was painted when it was must go.
    control.setHot(true);
    control.setHot(false);
    EXPECT_EQ(window.invalidated, (Rects{{45, 50, 105, 49}, {45, 50, 105, 49}}));
    window.invalidated.clear();
    control.glow(20);
    EXPECT_EQ(window.invalidated, (Rects{{30, 30, 140, 80}}));
    window.invalidated.clear();
    control.glow(3);
    EXPECT_EQ(window.invalidated, (Rects{{30, 30, 140, 80}, {45, 47, 108, 52}}));
    window.invalidated.clear();
    control.setBounds({60, 50, 100, 40});
    EXPECT_EQ(window.invalidated, (Rects{{45, 47, 108, 52}, {55, 47, 108, 52}}));
}

TEST_F(DamageTest, WhatAPanelClipsIsNotDamaged)
{
    auto& panel = window.root.addControl(std::make_unique<Panel>(L"panel", Rect{50, 50, 100, 100}));
    SurfaceStyle surface;
    surface.showGlow = true;
    panel.setSurface(surface);
    Glowing& control = add({-5, 30, 40, 40}, 10, &panel);
    control.setEnabled(false);
    EXPECT_EQ(window.invalidated, (Rects{{50, 70, 45, 60}}));
    panel.setEnabled(false);
    EXPECT_EQ(window.invalidated.back(), (Rect{50, 50, 100, 100}));
    // A control that is no panel paints its children wherever they are, and moves them with it.
    auto& plain = window.root.addControl(std::make_unique<Control>(L"plain", Rect{200, 200, 50, 50}));
    Glowing child(L"child", {40, 0, 20, 20});
    child.normal.showGlow = true;
    child.normal.glowRadius = 4;
    plain.addChild(child);
    window.invalidated.clear();
    plain.setBounds({200, 100, 50, 50});
    EXPECT_EQ(window.invalidated, (Rects{{200, 196, 64, 54}, {200, 96, 64, 54}}));
}

TEST_F(DamageTest, GrowsByTheSurfacesWhoseGlowLiesInIt)
{
    add({10, 10, 50, 20}, 0);
    add({80, 10, 50, 20}, 8);
    Glowing& far = add({150, 10, 50, 20}, 21);
    const Rect beside{62, 12, 12, 4};
    EXPECT_EQ(grown({beside}), (Rects{beside, {80, 10, 50, 20}, {150, 10, 50, 20}})); // one by one
    far.glow(20);
    EXPECT_EQ(grown({beside}), (Rects{beside, {80, 10, 50, 20}}));
    // On the surface itself its glow is painted anyway.
    EXPECT_EQ(grown({{122, 29, 5, 5}}), (Rects{{122, 29, 5, 5}}));
    EXPECT_EQ(grown({{62, 12, 10, 4}}), (Rects{{62, 12, 10, 4}}));
    EXPECT_EQ(grown({{0, 0, 5, 5}, beside, {200, 10, 30, 5}}),
              (Rects{{0, 0, 5, 5}, beside, {200, 10, 30, 5}, {80, 10, 50, 20}, {150, 10, 50, 20}}));
    far.setVisible(false);
    EXPECT_EQ(grown({{200, 10, 5, 5}}), (Rects{{200, 10, 5, 5}}));
    EXPECT_EQ(grown({}), Rects{});
}

TEST_F(DamageTest, GrowsByNothingThatIsNotPainted)
{
    auto& panel = window.root.addControl(std::make_unique<Panel>(L"panel", Rect{50, 50, 100, 100}));
    Glowing& control = add({10, 10, 30, 30}, 20, &panel);
    Glowing& outside = add({110, 40, 20, 20}, 20, &panel); // only its glow would reach into the panel
    const Rect below{60, 95, 5, 5};
    EXPECT_EQ(grown({below}), (Rects{below, {60, 60, 30, 30}}));
    EXPECT_EQ(grown({{45, 60, 5, 5}}), (Rects{{45, 60, 5, 5}})); // the panel clips it
    EXPECT_EQ(grown({{145, 95, 5, 5}}), (Rects{{145, 95, 5, 5}}));
    outside.setBounds({90, 40, 20, 20});
    EXPECT_EQ(grown({{145, 115, 5, 5}}), (Rects{{145, 115, 5, 5}, {140, 90, 10, 20}}));
    outside.setVisible(false);
    // Its glow belongs to another state.
    control.setHot(true);
    EXPECT_EQ(grown({below}), (Rects{below}));
}

} // namespace
} // namespace vela
