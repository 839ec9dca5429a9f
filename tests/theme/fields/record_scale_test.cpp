#include "vela/theme/fields/record_scale.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(RecordScale, LengthsGrowAndNothingElseDoes)
{
    PopupStyle style;
    style.surface.glowRadius = 7;
    style.surface.materialAngle = 30;
    style.surface.materialLightAngle = 225;
    style.surface.nineSlice = {4, 5, 4, -4};
    style.surface.geometry.ensure().bandHeight = 10;
    style.surface.geometry.ensure().hitInsets = {1, 2, 3, 4};
    style.surface.geometry.ensure().textInsets = {0, 0, INT32_MAX, 0};
    style.closeButton.surface.hot.outlineWidth = 2;
    style.closeButton.surface.active.shadowOffsetY = -3;
    style.titleText.pointSize = 14;
    style.headerHeight = 64;
    PopupStyle expected = style;
    expected.surface.glowRadius = 11;
    expected.closeButton.surface.hot.outlineWidth = 3;
    expected.closeButton.surface.active.shadowOffsetY = -5;
    expected.headerHeight = 96;

    const PopupStyle scaled = scaledToDpi(style, 144);
    EXPECT_EQ(scaled.surface.glowRadius, expected.surface.glowRadius);
    EXPECT_EQ(scaled.surface.materialAngle, 30);
    EXPECT_EQ(scaled.surface.materialLightAngle, 225);
    EXPECT_EQ(scaled.surface.nineSlice, (Insets{6, 8, 6, -6}));
    EXPECT_EQ(scaled.surface.geometry->bandHeight, 15);
    EXPECT_EQ(scaled.surface.geometry->hitInsets, (Insets{2, 3, 5, 6}));
    EXPECT_EQ(scaled.surface.geometry->textInsets, (Insets{0, 0, INT32_MAX, 0}));
    EXPECT_EQ(scaled.surface.lengthsDpi, 144);
    EXPECT_EQ(scaled.closeButton.surface.hot.lengthsDpi, 144);
    EXPECT_EQ(scaled.closeButton.surface.hot.outlineWidth, expected.closeButton.surface.hot.outlineWidth);
    EXPECT_EQ(scaled.closeButton.surface.active.shadowOffsetY,
              expected.closeButton.surface.active.shadowOffsetY);
    EXPECT_EQ(scaled.titleText, style.titleText);
    EXPECT_EQ(scaled.headerHeight, expected.headerHeight);
    EXPECT_EQ(scaledToDpi(style, 96), style);
}

TEST(RecordScale, CountsAndTimesStay)
{
    const SelectBoxStyle scaled = scaledToDpi(SelectBoxStyle{}, 192);
    EXPECT_EQ(scaled.maxVisibleItems, SelectBoxStyle{}.maxVisibleItems);
    EXPECT_EQ(scaled.scrollAcceleration, ScrollAcceleration{});
    EXPECT_EQ(scaled.scrollBar.buttonExtent, 2 * ScrollBarStyle{}.buttonExtent);
    EXPECT_EQ(scaled.itemHeight, 2 * SelectBoxStyle{}.itemHeight);
}

TEST(RecordScale, WhatIsDescribedTwiceGrowsOnce)
{
    TabsStyle tabs;
    tabs.itemButton.surface.hot.glowRadius = 10;
    BitmapButtonStyle button;
    button.image.glowRadius = 10;
    EXPECT_EQ(scaledToDpi(tabs, 192).itemButton.surface.hot.glowRadius, 20);
    EXPECT_EQ(scaledToDpi(button, 192).image.glowRadius, 20);
}

TEST(RecordScale, TheWayBackIsExact)
{
    for (std::int32_t dpi = 96; dpi <= 480; dpi += 12)
        for (std::int32_t length = -300; length <= 300; ++length)
            EXPECT_EQ(designLength(scaledLength(length, dpi), dpi), length) << dpi;
}

TEST(RecordScale, AThinLineStaysVisibleAndAHugeOneSaturates)
{
    EXPECT_EQ(scaledLength(1, 40), 1);
    EXPECT_EQ(scaledLength(-1, 40), -1);
    EXPECT_EQ(scaledLength(0, 240), 0);
    EXPECT_EQ(scaledLength(INT32_MAX, 240), INT32_MAX);
    EXPECT_EQ(scaledLength(5, 0), 5);
}

} // namespace
} // namespace vela
