#include "tests/controls/tree/fake_window.h"
#include "vela/controls/tree/focus_order.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

class Focusable : public Control {
public:
    using Control::Control;
    bool acceptsFocus() const override { return true; }
};

TEST(FocusOrder, GoesByLinesAndWrapsAround)
{
    FakeWindow window({600, 400});
    const auto add = [](Panel& panel, const wchar_t* id, Rect bounds) {
        return panel.add(std::make_unique<Focusable>(id, bounds));
    };
    Control* const close = add(window.root, L"close", {560, 0, 40, 32});
    Control* const install = add(window.root, L"install", {460, 350, 120, 34});
    auto& form = window.root.addControl(std::make_unique<Panel>(L"form", Rect{50, 100, 500, 200}));
    Control* const browse = add(form, L"browse", {400, 9, 90, 34}); // a little higher than its neighbour
    Control* const folder = add(form, L"folder", {0, 10, 380, 32});
    Control* const startup = add(form, L"startup", {0, 60, 300, 28});
    form.add(std::make_unique<Control>(L"label", Rect{0, 0, 10, 10}));
    add(form, L"off", {0, 90, 300, 28})->setEnabled(false);
    add(form, L"hidden", {0, 120, 300, 28})->setVisible(false);

    const std::vector<Control*> order = focusOrder(window.root);
    EXPECT_EQ(order, (std::vector<Control*>{close, folder, browse, startup, install}));
    EXPECT_EQ(focusAfter(order, nullptr, FocusStep::Next), close);
    EXPECT_EQ(focusAfter(order, nullptr, FocusStep::Previous), install);
    EXPECT_EQ(focusAfter(order, install, FocusStep::Next), close);
    EXPECT_EQ(focusAfter(order, close, FocusStep::Previous), install);
    EXPECT_EQ(focusAfter(order, folder, FocusStep::Next), browse);
    form.setVisible(false);
    EXPECT_EQ(focusOrder(window.root), (std::vector<Control*>{close, install}));
    EXPECT_EQ(focusAfter({}, close, FocusStep::Next), nullptr);
}

} // namespace
} // namespace vela
