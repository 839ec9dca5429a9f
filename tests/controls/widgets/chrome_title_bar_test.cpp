#include "vela/controls/widgets/chrome_title_bar.h"

#include "tests/controls/widgets/widget_testing.h"
#include "vela/theme/records/style_sheet.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

class ChromeTitleBarTest : public WidgetTest {
protected:
    ChromeTitleBarTest() : WidgetTest({690, 420}) {}
    std::wstring lastAction() const { return window.commands.empty() ? L"" : window.commands.back().action; }

    StyleSheet styles;
};

TEST_F(ChromeTitleBarTest, CaptionButtonsStandAtTheRightEdgeInTheirOrder)
{
    auto& bar = window.root.addControl(
        std::make_unique<ChromeTitleBar>(L"chrome", Rect{0, 0, 690, 40}, L"Tamber Setup", Theme()));
    bar.setAnchors(Anchors::Left | Anchors::Top | Anchors::Right);
    for (const CaptionButton which :
         {CaptionButton::ResetSize, CaptionButton::Minimize, CaptionButton::Maximize})
        bar.showButton(which, true);
    bar.applyStyle(styles);
    ThemedButton& action = bar.addHeaderAction(3, L"?");
    const struct {
        const wchar_t* id;
        Rect bounds;
    } rows[] = {{L"chrome-close", {644, 0, 46, 32}},
                {L"chrome-maximize", {598, 0, 46, 32}},
                {L"chrome-minimize", {552, 0, 46, 32}},
                {L"chrome-reset-size", {506, 0, 46, 32}},
                {L"chrome-header-action-3", {448, 0, 46, 32}}};
    for (const auto& row : rows)
        EXPECT_EQ(findControl(window.root, row.id)->bounds(), row.bounds) << row.id;
    EXPECT_FALSE(action.acceptsFocus());

    bar.showButton(CaptionButton::Minimize, false);
    EXPECT_EQ(findControl(window.root, L"chrome-reset-size")->bounds().x, 552);
    window.root.setBounds({0, 0, 800, 420});
    EXPECT_EQ(findControl(window.root, L"chrome-close")->bounds().x, 754);
}

TEST_F(ChromeTitleBarTest, TheTitleBarReportsWhatIsAskedOfTheWindow)
{
    auto& bar = window.root.addControl(
        std::make_unique<ChromeTitleBar>(L"chrome", Rect{0, 0, 690, 40}, L"Tamber Setup", Theme()));
    bar.addHeaderAction(3, L"?");
    click({660, 10});
    EXPECT_EQ(lastAction(), L"close");
    click({590, 10});
    EXPECT_EQ(lastAction(), L"header-action-3");
    click({200, 10});
    EXPECT_EQ(lastAction(), L"drag");
    EXPECT_EQ(window.commands.back().controlId, L"chrome-drag");
    click({200, 10}, 2);
    EXPECT_EQ(lastAction(), L"drag"); // nothing to maximise here

    bar.showButton(CaptionButton::Maximize, true);
    click({200, 10}, 2);
    EXPECT_EQ(lastAction(), L"maximize");
    window.maximised = true;
    window.root.setBounds({0, 0, 1000, 700});
    bar.setBounds({0, 0, 1000, 40});
    click({200, 10}, 2);
    EXPECT_EQ(lastAction(), L"restore");
    click({940, 10});
    EXPECT_EQ(lastAction(), L"restore");
    window.maximised = false;
    window.root.setBounds({0, 0, 690, 420});
    click({200, 10}, 2);
    EXPECT_EQ(lastAction(), L"maximize");

    EXPECT_EQ(bar.dialogControl(DialogRole::Cancel), &bar.button(CaptionButton::Close));
    bar.button(CaptionButton::Close).setEnabled(false);
    EXPECT_EQ(bar.dialogControl(DialogRole::Cancel), nullptr);
}

TEST_F(ChromeTitleBarTest, ButtonsSayWhatTheyDoInTheProgramsWords)
{
    auto& bar = window.root.addControl(
        std::make_unique<ChromeTitleBar>(L"chrome", Rect{0, 0, 690, 40}, L"Tamber Setup", Theme()));
    bar.showButton(CaptionButton::Maximize, true);
    const std::pair<CaptionButton, std::wstring_view> rows[] = {
        {CaptionButton::ResetSize, L"Puvodni velikost"},
        {CaptionButton::Minimize, L"Minimalizovat"},
        {CaptionButton::Maximize, L"Maximalizovat"},
        {CaptionButton::Close, L"Zavrit"}};
    for (const auto& [which, hint] : rows)
        EXPECT_EQ(bar.button(which).hint(), hint);
    window.maximised = true;
    bar.onContentRefresh();
    EXPECT_EQ(bar.button(CaptionButton::Maximize).hint(), L"Obnovit");
}

} // namespace
} // namespace vela
