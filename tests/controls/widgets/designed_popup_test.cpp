#include "vela/controls/widgets/designed_popup.h"

#include "tests/controls/widgets/widget_testing.h"
#include "tests/support/painted.h"
#include "vela/controls/widgets/chrome_title_bar.h"
#include "vela/theme/records/style_sheet.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vela {
namespace {

class DesignedPopupTest : public WidgetTest {
protected:
    DesignedPopupTest() : WidgetTest({690, 420}) {}
    std::wstring lastAction() const { return window.commands.empty() ? L"" : window.commands.back().action; }

    StyleSheet styles;
};

TEST_F(DesignedPopupTest, APopupsActionsEndAtTheRightInTheOrderGiven)
{
    auto& popup =
        window.root.addControl(std::make_unique<DesignedPopup>(L"setup.popup", Rect{0, 40, 690, 380}));
    popup.setActions({{L"Instalovat", L"install", true}, {L"Zavrit", L""}});
    popup.applyStyle(styles);
    popup.onStyleApplied();
    EXPECT_EQ(popup.actionButton(0).bounds(), (Rect{690 - 24 - 128 - 10 - 128, 380 - 20 - 34, 128, 34}));
    EXPECT_EQ(popup.actionButton(1).bounds(), (Rect{690 - 24 - 128, 380 - 20 - 34, 128, 34}));
    click({450, 380});
    EXPECT_EQ(lastAction(), L"install");
    click({600, 380});
    EXPECT_EQ(lastAction(), L"setup.popup.action.1");
    EXPECT_EQ(popup.dialogControl(DialogRole::Primary), &popup.actionButton(0));
    popup.setActions({{L"Ponechat vse tak, jak to je", L"a"}, {L"B", L"b", true}});
    EXPECT_EQ(popup.dialogControl(DialogRole::Primary), &popup.actionButton(1));
    // A long caption is shown whole.
    EXPECT_GT(popup.actionButton(0).bounds().width, 128);
    EXPECT_EQ(popup.actionButton(0).bounds().x + popup.actionButton(0).bounds().width + 10,
              popup.actionButton(1).bounds().x);
    popup.setActions({});
    EXPECT_EQ(popup.dialogControl(DialogRole::Primary), nullptr);
}

TEST_F(DesignedPopupTest, APopupIsDraggedAndClosed)
{
    auto& popup =
        window.root.addControl(std::make_unique<DesignedPopup>(L"setup.popup", Rect{0, 40, 690, 380}));
    popup.setTitle(L"Instalace Tambere");
    click({100, 60});
    EXPECT_EQ(lastAction(), L"drag");
    EXPECT_EQ(window.commands.back().controlId, L"setup.popup");
    EXPECT_EQ(window.commands.back().text, L"Instalace Tambere");
    click({100, 200});
    EXPECT_EQ(window.commands.size(), 1u);

    window.handlesCommands = true;
    popup.dialogControl(DialogRole::Cancel)->activate();
    EXPECT_EQ(lastAction(), L"close");
    EXPECT_FALSE(popup.isOpen());
    EXPECT_FALSE(popup.isVisible());
    popup.setOpen(true);
    EXPECT_TRUE(popup.isVisible());
    popup.setClosable(false);
    EXPECT_EQ(popup.dialogControl(DialogRole::Cancel), nullptr);
}

TEST_F(DesignedPopupTest, ArrowKeysGoAlongThePopupsButtons)
{
    auto& popup = window.root.addControl(std::make_unique<DesignedPopup>(L"p", Rect{0, 0, 690, 380}));
    popup.setActions({{L"A", L"a"}, {L"B", L"b"}, {L"C", L"c"}});
    popup.actionButton(1).setEnabled(false);
    EXPECT_FALSE(popup.keyPressed({kKeyRight, {}, false}));
    window.focused = &popup.actionButton(0);
    EXPECT_TRUE(popup.keyPressed({kKeyRight, {}, false}));
    EXPECT_EQ(window.focused, &popup.actionButton(2));
    EXPECT_TRUE(popup.keyPressed({kKeyDown, {}, false}));
    EXPECT_EQ(window.focused, &popup.actionButton(2));
    popup.keyPressed({kKeyUp, {}, false});
    EXPECT_EQ(window.focused, &popup.actionButton(0));
    EXPECT_FALSE(popup.keyPressed({kKeyLeft, {.shift = true}, false}));
}

#ifndef _WIN32 // there the product's renderer paints
Rect rectOf(const std::vector<TextCall>& texts, std::wstring_view text)
{
    const auto found = std::ranges::find(texts, text, &TextCall::text);
    return found == texts.end() ? Rect{} : found->rect;
}

TEST_F(DesignedPopupTest, APopupPaintsItsPartsInsideItself)
{
    auto& popup = window.root.addControl(std::make_unique<DesignedPopup>(L"p", Rect{0, 40, 690, 380}));
    popup.setTitle(L"Titul");
    popup.setIconText(L"!");
    popup.setMessage(L"Zprava");
    popup.applyStyle(styles);
    const PopupStyle style;
    const auto texts = testing::paintedBy<TextCall>(popup);
    EXPECT_EQ(rectOf(texts, L"Titul").x, style.paddingX + style.iconSize + 14);
    EXPECT_EQ(rectOf(texts, L"Zprava").y, 40 + style.headerHeight + 16); // clear of the header's band
    const auto icons = testing::paintedBy<IconCall>(popup);
    ASSERT_EQ(icons.size(), 2u);
    EXPECT_EQ(icons[0].icon, Icon::Warning);
    EXPECT_EQ(icons[1].icon, Icon::Close);
    for (const PaintCall& call : testing::paintedBy(popup)) {
        const Rect rect = paintedRect(call).value_or(Rect{});
        EXPECT_EQ(intersection(rect, popup.bounds()), rect);
    }
}

TEST_F(DesignedPopupTest, BitmapInsetsMoveWhatStandsOnASurface)
{
    SurfaceGeometry& popupInsets = styles.table<PopupStyle>().defaultRecord().surface.geometry.ensure();
    popupInsets.safeInsets = {10, 20, 30, 40};
    popupInsets.actionRowInsets = {0, 3, 5, 7};
    SurfaceGeometry& barInsets =
        styles.table<ChromeTitleBarStyle>().defaultRecord().surface.geometry.ensure();
    barInsets.textInsets = {9, 0, 0, 0};
    barInsets.childLayoutInsets = {0, 4, 6, 0};
    auto& bar = window.root.addControl(
        std::make_unique<ChromeTitleBar>(L"chrome", Rect{0, 0, 690, 40}, L"Tamber Setup", Theme()));
    auto& popup = window.root.addControl(std::make_unique<DesignedPopup>(L"popup", Rect{0, 40, 400, 300}));
    popup.setTitle(L"Hotovo");
    popup.setMessage(L"Zprava");
    popup.setActions({{L"OK", {}, true}});
    const auto plain = testing::paintedBy<TextCall>(window.root);
    const Rect action = popup.actionButton(0).bounds();
    const Rect popupClose = popup.closeButton().bounds();
    styleTree(window.root, styles);
    const auto moved = testing::paintedBy<TextCall>(window.root);

    const Rect title = rectOf(plain, L"Hotovo");
    EXPECT_EQ(rectOf(moved, L"Hotovo"),
              (Rect{title.x + 10, title.y + 20, title.width - 40, title.height - 60}));
    const Rect message = rectOf(plain, L"Zprava");
    EXPECT_EQ(rectOf(moved, L"Zprava"),
              (Rect{message.x + 10, message.y + 20, message.width - 40, message.height - 60 - 10}));
    EXPECT_EQ(popup.actionButton(0).bounds(), movedBy(action, {-5, -7}));
    EXPECT_EQ(popup.closeButton().bounds(), movedBy(popupClose, {-30, 20}));
    EXPECT_EQ(bar.button(CaptionButton::Close).bounds(), (Rect{638, 4, 46, 32}));
    const Rect caption = rectOf(plain, L"Tamber Setup");
    EXPECT_EQ(rectOf(moved, L"Tamber Setup"),
              (Rect{caption.x + 9, caption.y, caption.width - 9 - 6, caption.height}));
}

TEST_F(DesignedPopupTest, APopupCastsItsShadowOnlyOnGroundThatIsSeen)
{
    PopupStyle& style = styles.table<PopupStyle>().defaultRecord();
    style.shadowOffsetX = 3;
    style.shadowOffsetY = 5;
    auto& popup = window.root.addControl(std::make_unique<DesignedPopup>(L"p", Rect{0, 40, 690, 380}));
    const auto shadows = [&] {
        popup.applyStyle(styles);
        auto calls = testing::paintedBy<SurfaceCall>(popup);
        std::erase_if(calls, [](const SurfaceCall& call) { return !call.style.showShadow; });
        return calls;
    };
    EXPECT_TRUE(shadows().empty()); // it fills what lies below the title bar
    popup.setBounds({20, 60, 400, 200});
    ASSERT_EQ(shadows().size(), 1u);
    EXPECT_EQ(shadows()[0].rect, popup.bounds());
    EXPECT_EQ(shadows()[0].style.shadowOffsetX, 3);
    EXPECT_EQ(shadows()[0].style.shadowOffsetY, 5);
    window.invalidated.clear();
    popup.setMessage(L"Jina");
    EXPECT_EQ(window.invalidated.back(), (Rect{20, 60, 403, 205}));
    style.showShadow = false;
    EXPECT_TRUE(shadows().empty());
}
#endif

} // namespace
} // namespace vela
