#include "vela/controls/widgets/label.h"

#include "tests/controls/widgets/widget_testing.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

class LabelTest : public WidgetTest {};

TEST_F(LabelTest, OnlyRealChangesRepaint)
{
    auto& label = window.root.addControl(std::make_unique<Label>(L"l", Rect{0, 0, 100, 20}, L"a"));
    window.invalidated.clear();
    label.setText(L"a");
    EXPECT_TRUE(window.invalidated.empty());
    label.setText(L"b");
    EXPECT_EQ(window.invalidated, (std::vector<Rect>{{0, 0, 100, 20}}));
}

} // namespace
} // namespace vela
