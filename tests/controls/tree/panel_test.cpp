#include "vela/controls/tree/panel.h"

#include "tests/controls/tree/fake_window.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(PanelTest, DiagnosticsNameTheChildThatInflatesItsPanel)
{
    FakeWindow window({100, 100});
    window.diagnostics = true;
    Control* const child = window.root.add(std::make_unique<Control>(L"c", Rect{10, 20, 30, 40}));
    window.lines.clear();
    child->setMinimumSize({30, 40});
    EXPECT_EQ(window.root.minimumContentSizeHint(), (Size{40, 60}));
    ASSERT_FALSE(window.lines.empty());
    EXPECT_EQ(window.lines.back(),
              L"[Vela diagnostic] Panel::minimumContentSizeHint panel=root child=c visible=true "
              L"bounds={x=10,y=20,w=30,h=40} anchors=Left|Top minimumParentSizeHint=40x60 "
              L"inflates=width,height before=0x0 after=40x60");
}

} // namespace
} // namespace vela
