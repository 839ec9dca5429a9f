#include "vela/controls/widgets/progress_bar.h"

#include "tests/controls/widgets/widget_testing.h"
#include "tests/support/painted.h"
#include "vela/theme/records/style_sheet.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

class ProgressBarTest : public WidgetTest {};

TEST_F(ProgressBarTest, PropertiesByNameTakeOnlyWhatTheyKnow)
{
    ProgressBar bar(L"p", {0, 0, 100, 20});
    const struct {
        const wchar_t* name;
        const wchar_t* written;
        const wchar_t* read;
    } rows[] = {
        {L"value", L"150", L"100"}, {L"value", L"-3", L"0"}, {L"value", L"7x", L"7"},
        {L"value", L"abc", L"7"},   {L"value", L"", L"7"},   {L"checked", L"1", L"7"},
    };
    for (const auto& row : rows) {
        bar.setProperty(row.name, row.written);
        EXPECT_EQ(bar.properties().front().second, row.read);
    }
    EXPECT_EQ(bar.text(), L"7%");
    EXPECT_FLOAT_EQ(progressEnd(492, 8), 39.36F);
}

TEST_F(ProgressBarTest, OnlyRealChangesRepaint)
{
    auto& bar = window.root.addControl(std::make_unique<ProgressBar>(L"p", Rect{0, 30, 100, 20}));
    window.invalidated.clear();
    bar.setValue(-5);
    EXPECT_TRUE(window.invalidated.empty());
    bar.setValue(5);
    EXPECT_EQ(window.invalidated, (std::vector<Rect>{{0, 30, 100, 20}}));
}

TEST_F(ProgressBarTest, SaysWhatItIs)
{
    ProgressBar bar(L"p", {0, 0, 10, 10});
    bar.setValue(42);
    EXPECT_EQ(bar.accessibleInfo().value, L"42%");
}

#ifndef _WIN32 // there the product's renderer paints
TEST_F(ProgressBarTest, ABarTooLowForItsInsetsStillShowsATrack)
{
    StyleSheet styles;
    styles.table<ProgressBarStyle>().defaultRecord().insetY = 11;
    const auto trackHeight = [&](std::int32_t height) {
        ProgressBar bar(L"p", {0, 0, 200, height});
        bar.applyStyle(styles);
        return testing::paintedBy<ProgressFillCall>(bar).at(0).track.height;
    };
    EXPECT_EQ(trackHeight(32), 10);
    EXPECT_EQ(trackHeight(28), 6);
    EXPECT_EQ(trackHeight(18), 6);
    EXPECT_EQ(trackHeight(4), 4);
}
#endif

} // namespace
} // namespace vela
