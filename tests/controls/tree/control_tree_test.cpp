#include "tests/controls/tree/fake_window.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

std::unique_ptr<Control> control(std::wstring id, Rect bounds)
{
    return std::make_unique<Control>(std::move(id), bounds);
}

// Handles what it is told to and remembers where events arrived.
class Probe : public Control {
public:
    using Control::Control;
    bool mouseButton(const MouseEvent& event) override
    {
        if (!isVisible() || !isEnabled() || !containsLocal(event.position))
            return false;
        events.push_back(event.position);
        return handles;
    }
    PropertyList properties() const override { return {{L"value", value}}; }
    void setProperty(std::wstring_view name, std::wstring_view text) override
    {
        if (name == L"value")
            value = text;
    }
    void onBoundsChanged() override { ++layouts; }

    bool handles = true;
    int layouts = 0;
    std::wstring value;
    std::vector<Point> events;
};

TEST(ControlTree, AddingCapturesTheDesignAgainstTheCurrentSize)
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

TEST(ControlTree, SettingTheSameBoundsDoesNothing)
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

TEST(ControlTree, OnlyChangesThatShowRepaintAndOnlyTheVisiblePart)
{
    FakeWindow window({100, 100});
    auto& panel = window.root.addControl(std::make_unique<Panel>(L"panel", Rect{80, 5, 40, 40}));
    Control* const child = panel.add(control(L"c", {5, 5, 30, 10}));
    window.invalidated.clear();
    child->setEnabled(true);
    child->setVisible(true);
    child->setHot(false);
    EXPECT_TRUE(window.invalidated.empty());
    child->setEnabled(false);
    EXPECT_EQ(window.invalidated, (std::vector<Rect>{{85, 10, 15, 10}}));
    child->setCollapsed(true);
    EXPECT_EQ(window.invalidated.back(), (Rect{0, 0, 100, 100}));
    window.alive = false;
    window.invalidated.clear();
    child->setEnabled(true);
    EXPECT_TRUE(window.invalidated.empty());
}

TEST(ControlTree, AMoveIsToldFromAChangeOfState)
{
    static_assert(static_cast<int>(InvalidationReason::State) == 8);
    static_assert(static_cast<int>(InvalidationReason::Geometry) == 16);
    FakeWindow window({100, 100});
    Control* const child = window.root.add(control(L"c", {5, 5, 30, 10}));
    window.reasons.clear();
    child->setEnabled(false);
    child->setBounds({6, 5, 30, 10});
    EXPECT_EQ(window.reasons, (std::vector{InvalidationReason::State, InvalidationReason::Geometry,
                                           InvalidationReason::Geometry}));
}

TEST(ControlTree, MinimumSizesCountWhatIsVisible)
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

TEST(ControlTree, AMinimumSizeReplacesTheDesignAndGrowsWithTheScale)
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

TEST(ControlTree, ConstraintsTakeThePlaceOfAnchors)
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

TEST(ControlTree, AHiddenChildCatchesUpWhenItIsShown)
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

TEST(ControlTree, MouseButtonsReachTheTopmostVisibleEnabledChild)
{
    FakeWindow window({100, 100});
    auto& panel = window.root.addControl(std::make_unique<Panel>(L"panel", Rect{10, 20, 80, 80}));
    auto& below = panel.addControl(std::make_unique<Probe>(L"below", Rect{0, 0, 50, 50}));
    auto& above = panel.addControl(std::make_unique<Probe>(L"above", Rect{5, 5, 20, 20}));
    MouseEvent press;
    press.position = {20, 30};
    EXPECT_TRUE(window.root.mouseButton(press));
    EXPECT_EQ(above.events, (std::vector<Point>{{5, 5}}));
    EXPECT_TRUE(below.events.empty());
    above.setEnabled(false);
    EXPECT_TRUE(window.root.mouseButton(press));
    EXPECT_EQ(below.events, (std::vector<Point>{{10, 10}}));
    below.handles = false;
    EXPECT_FALSE(window.root.mouseButton(press));
    panel.setVisible(false);
    below.events.clear();
    EXPECT_FALSE(window.root.mouseButton(press));
    EXPECT_TRUE(below.events.empty());
}

TEST(ControlTree, MovingThePointerChangesHotAndLeavingClearsIt)
{
    FakeWindow window({100, 100});
    auto& panel = window.root.addControl(std::make_unique<Panel>(L"panel", Rect{10, 10, 80, 80}));
    Control* const a = panel.add(control(L"a", {0, 0, 20, 20}));
    Control* const b = panel.add(control(L"b", {20, 0, 20, 20}));
    EXPECT_TRUE(window.root.mouseMoved({15, 15}));
    EXPECT_TRUE(a->isHot());
    EXPECT_FALSE(window.root.mouseMoved({16, 16}));
    EXPECT_TRUE(window.root.mouseMoved({35, 15}));
    EXPECT_FALSE(a->isHot());
    EXPECT_TRUE(b->isHot());
    EXPECT_TRUE(window.root.mouseMoved(kPointerGone));
    EXPECT_FALSE(b->isHot());
    a->setEnabled(false);
    EXPECT_FALSE(window.root.mouseMoved({15, 15}));
}

TEST(ControlTree, SnapshotsPutEverythingBack)
{
    FakeWindow window({100, 100});
    auto& probe = window.root.addControl(std::make_unique<Probe>(L"p", Rect{1, 2, 30, 40}));
    probe.setStyleKey(L"primary");
    probe.value = L"7";
    ControlState state;
    probe.captureState(state);
    EXPECT_EQ(state, (ControlState{L"p", {1, 2, 30, 40}, true, true, false, L"primary", {{L"value", L"7"}}}));
    probe.setBounds({5, 5, 5, 5});
    probe.setVisible(false);
    probe.setEnabled(false);
    probe.value.clear();
    probe.restoreState(state, false);
    EXPECT_EQ(probe.bounds(), (Rect{5, 5, 5, 5}));
    EXPECT_TRUE(probe.isVisible() && probe.isEnabled());
    EXPECT_EQ(probe.value, L"7");
    probe.restoreState(state, true);
    EXPECT_EQ(probe.bounds(), (Rect{1, 2, 30, 40}));
}

TEST(ControlTree, DiagnosticsNameTheChildThatInflatesItsPanel)
{
    FakeWindow window({100, 100});
    window.diagnostics = true;
    Control* const child = window.root.add(control(L"c", {10, 20, 30, 40}));
    window.lines.clear();
    child->setMinimumSize({30, 40});
    EXPECT_EQ(window.root.minimumContentSizeHint(), (Size{40, 60}));
    ASSERT_FALSE(window.lines.empty());
    EXPECT_EQ(window.lines.back(),
              L"[Vela diagnostic] Panel::minimumContentSizeHint panel=root child=c visible=true "
              L"bounds={x=10,y=20,w=30,h=40} anchors=Left|Top minimumParentSizeHint=40x60 "
              L"inflates=width,height before=0x0 after=40x60");
}

TEST(ControlTree, RescalingForADpiAndBackLosesNothing)
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

TEST(ControlTree, RemovingAndDestroyingLeaveNoPointersBehind)
{
    FakeWindow window({100, 100});
    auto& panel = window.root.addControl(std::make_unique<Panel>(L"panel", Rect{0, 0, 100, 100}));
    auto& owner = panel.addControl(std::make_unique<Control>(L"owner", Rect{0, 0, 50, 50}));
    {
        Control plain(L"plain", {1, 1, 5, 5});
        owner.addChild(plain);
        EXPECT_EQ(plain.window(), &window);
        EXPECT_EQ(plain.windowRect(), (Rect{1, 1, 5, 5}));
    }
    EXPECT_TRUE(owner.children().empty());
    const std::unique_ptr<Control> taken = window.root.remove(panel);
    ASSERT_TRUE(taken);
    EXPECT_EQ(window.detached, (std::vector<std::wstring>{L"panel", L"owner"}));
    EXPECT_EQ(taken->window(), nullptr);
    EXPECT_EQ(owner.window(), nullptr);
    EXPECT_FALSE(owner.windowRect());
    EXPECT_EQ(findControl(*taken, L"owner"), &owner);
    EXPECT_EQ(findControl(window.root, L"owner"), nullptr);
}

TEST(ControlTree, TenThousandControlsAreBuiltInLinearTime)
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
