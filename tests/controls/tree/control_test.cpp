#include "vela/controls/tree/control.h"

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

    bool handles = true;
    std::wstring value;
    std::vector<Point> events;
};

TEST(ControlTest, OnlyChangesThatShowRepaintAndOnlyTheVisiblePart)
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

TEST(ControlTest, AMoveIsToldFromAChangeOfState)
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

TEST(ControlTest, MouseButtonsReachTheTopmostVisibleEnabledChild)
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

TEST(ControlTest, MovingThePointerChangesHotAndLeavingClearsIt)
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

TEST(ControlTest, SnapshotsPutEverythingBack)
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

TEST(ControlTest, RemovingAndDestroyingLeaveNoPointersBehind)
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

} // namespace
} // namespace vela
