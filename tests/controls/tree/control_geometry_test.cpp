#include "vela/controls/tree/control.h"

#include "tests/controls/tree/fake_window.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

std::unique_ptr<Control> control(std::wstring id, Rect bounds)
{
    return std::make_unique<Control>(std::move(id), bounds);
}

class Probe : public Control {
public:
    using Control::Control;
    void onBoundsChanged() override { ++layouts; }

    int layouts = 0;
};

TEST(ControlGeometryTest, AddingCapturesTheDesignAgainstTheCurrentSize)
{
    FakeWindow window({400, 300});
    Control* const child = window.root.add(control(L"right", {300, 10, 80, 20}));
    child->setAnchors(Anchors::Right | Anchors::Top);
    EXPECT_EQ(child->designParentSize(), (Size{400, 300}));
    EXPECT_EQ(child->window(), &window);
    window.root.setBounds({0, 0, 500, 300});
    EXPECT_EQ(child->bounds(), (Rect{400, 10, 80, 20}));
    EXPECT_EQ(child->designBounds(), (Rect{300, 10, 80, 20}));
    window.root.setBounds({0, 0, 400, 300});
    EXPECT_EQ(child->bounds(), (Rect{300, 10, 80, 20}));

    // Bounds set by the program are a new design, captured at the next layout.
    child->setBounds({0, 0, 10, 10});
    EXPECT_FALSE(child->isLayoutCaptured());
    window.root.setBounds({0, 0, 200, 100});
    EXPECT_EQ(child->designParentSize(), (Size{200, 100}));
}

TEST(ControlGeometryTest, SettingTheSameBoundsDoesNothing)
{
    FakeWindow window({100, 100});
    auto& probe = window.root.addControl(std::make_unique<Probe>(L"p", Rect{10, 10, 20, 20}));
    window.invalidated.clear();
    probe.layouts = 0;
    probe.setBounds({10, 10, 20, 20});
    EXPECT_TRUE(window.invalidated.empty());
    EXPECT_EQ(probe.layouts, 0);
    probe.setBounds({90, 10, 20, 20});
    EXPECT_EQ(window.invalidated, (std::vector<Rect>{{10, 10, 20, 20}, {90, 10, 10, 20}}));
    EXPECT_EQ(probe.layouts, 1);
}

TEST(ControlGeometryTest, MinimumSizesCountWhatIsVisible)
{
    FakeWindow window({400, 300});
    auto& panel = window.root.addControl(std::make_unique<Panel>(L"panel", Rect{0, 0, 200, 100}));
    EXPECT_EQ(panel.cachedMinimumSize(), (Size{200, 100}));
    panel.setMinimumSize({10, 10});
    Control* const wide = panel.add(control(L"wide", {20, 10, 170, 20}));
    wide->setAnchors(Anchors::Left | Anchors::Right);
    EXPECT_EQ(panel.cachedMinimumSize(), (Size{200, 30}));
    wide->setMinimumSize({50, 20});
    EXPECT_EQ(panel.cachedMinimumSize(), (Size{80, 30}));
    wide->setCollapsed(true);
    EXPECT_EQ(panel.cachedMinimumSize(), (Size{10, 10}));
    wide->setCollapsed(false);
    wide->setVisible(false);
    EXPECT_EQ(panel.cachedMinimumSize(), (Size{10, 10}));
    EXPECT_EQ(window.root.cachedMinimumSize(), (Size{10, 10}));
}

TEST(ControlGeometryTest, AMinimumSizeReplacesTheDesignAndGrowsWithTheScale)
{
    Control alone(L"c", {0, 0, 80, 20});
    EXPECT_EQ(alone.minimumSize(), (Size{80, 20}));
    alone.setMinimumSize({30, 10});
    EXPECT_EQ(alone.minimumSize(), (Size{30, 10}));
    alone.rescale(192);
    EXPECT_EQ(alone.minimumSize(), (Size{60, 20}));
    alone.setMinimumSize({-5, 7});
    EXPECT_EQ(alone.minimumSize(), (Size{0, 7}));
}

TEST(ControlGeometryTest, ConstraintsTakeThePlaceOfAnchors)
{
    FakeWindow window({400, 300});
    Control* const child = window.root.add(control(L"c", {10, 12, 80, 20}));
    Constraints constraints;
    constraints.right = {1.0, -20, true};
    constraints.width = {100, true};
    child->setConstraints(constraints);
    window.root.setBounds({0, 0, 500, 300});
    EXPECT_EQ(child->bounds(),
              (Rect{380, 12, 100, 20})); // nothing set from top to bottom: there anchors hold
    child->setMinimumSize({150, 20});
    window.root.setBounds({0, 0, 600, 300});
    EXPECT_EQ(child->bounds(), (Rect{430, 12, 150, 20}));
    window.root.rescale(192);
    window.root.setBounds({0, 0, 1200, 600});
    EXPECT_EQ(child->bounds(), (Rect{860, 24, 300, 40}));
}

TEST(ControlGeometryTest, AHiddenChildCatchesUpWhenItIsShown)
{
    FakeWindow window({400, 300});
    Control* const child = window.root.add(control(L"c", {10, 10, 380, 20}));
    child->setAnchors(Anchors::Left | Anchors::Right | Anchors::Top);
    child->setVisible(false);
    window.root.setBounds({0, 0, 600, 300});
    EXPECT_EQ(child->bounds().width, 380);
    child->setVisible(true);
    EXPECT_EQ(child->bounds().width, 580);
}

TEST(ControlGeometryTest, RescalingForADpiAndBackLosesNothing)
{
    FakeWindow window({333, 201});
    auto& panel = window.root.addControl(std::make_unique<Panel>(L"panel", Rect{7, 11, 301, 155}));
    panel.setAnchors(Anchors::Left | Anchors::Top | Anchors::Right | Anchors::Bottom);
    Control* const child = panel.add(control(L"c", {13, 17, 101, 33}));
    child->setMinimumSize({15, 25});
    const Rect before = child->bounds();
    for (const std::int32_t dpi : {144, 120, 240, 168}) {
        window.root.rescale(dpi);
        window.root.setBounds({0, 0, 333 * dpi / 96, 201 * dpi / 96});
        EXPECT_NEAR(child->bounds().width, 101.0 * dpi / 96, 1);
        EXPECT_NEAR(child->bounds().x, 13.0 * dpi / 96, 1);
    }
    window.root.rescale(96);
    window.root.setBounds({0, 0, 333, 201});
    EXPECT_EQ(child->bounds(), before);
    EXPECT_EQ(panel.bounds(), (Rect{7, 11, 301, 155}));

    // What joins a scaled tree is scaled with it.
    window.root.rescale(192);
    Control* const late = window.root.add(control(L"late", {10, 10, 20, 20}));
    EXPECT_EQ(late->bounds(), (Rect{20, 20, 40, 40}));
}

TEST(ControlGeometryTest, TenThousandControlsAreBuiltInLinearTime)
{
    FakeWindow window({4000, 4000});
    Panel* panel = &window.root;
    int measured = 0;
    class Counting : public Control {
    public:
        Counting(int& count, Rect bounds) : Control(L"n", bounds), count_(count) {}
        Size minimumSize() const override
        {
            ++count_;
            return Control::minimumSize();
        }

    private:
        int& count_;
    };
    for (int i = 0; i < 10000; ++i) {
        panel->add(std::make_unique<Counting>(measured, Rect{i % 100, i / 100, 5, 5}));
        if (i % 1000 == 999)
            panel = &panel->addControl(std::make_unique<Panel>(L"deeper", Rect{0, 0, 3000, 3000}));
    }
    window.root.setBounds({0, 0, 3999, 3999});
    static_cast<void>(window.root.cachedMinimumSize());
    EXPECT_LE(measured, 40000);
}

} // namespace
} // namespace vela
