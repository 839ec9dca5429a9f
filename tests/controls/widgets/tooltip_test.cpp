#include "vela/controls/widgets/tooltip.h"

#include "vela/theme/records/style_sheet.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

#ifndef _WIN32 // there the product's renderer paints
TEST(TooltipTest, ItIsNoWiderThanItsStyleAllows)
{
    TooltipView tip(L"tip", {});
    tip.setText(L"Zavrit");
    EXPECT_EQ(tip.preferredSize(), (Size{6 * 8 + 1 + 20, 16 + 14}));
    tip.setText(std::wstring(100, L'x'));
    EXPECT_EQ(tip.preferredSize(), (Size{320, 3 * 16 + 14}));
    StyleSheet styles;
    styles.table<TooltipStyle>().defaultRecord().surface.geometry.ensure().textInsets = {3, 4, 5, 6};
    tip.applyStyle(styles);
    tip.setText(L"Zavrit");
    EXPECT_EQ(tip.preferredSize(), (Size{6 * 8 + 1 + 20 + 8, 16 + 14 + 10}));
}
#endif

} // namespace
} // namespace vela
