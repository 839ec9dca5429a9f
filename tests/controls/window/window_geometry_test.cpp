#include "vela/controls/window/window_geometry.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(WindowGeometry, ZonesOfTheResizeBand)
{
    const struct {
        Point cursor;
        FrameZone zone;
    } rows[] = {
        {{2, 2}, FrameZone::TopLeft},       {{97, 0}, FrameZone::TopRight}, {{0, 59}, FrameZone::BottomLeft},
        {{96, 56}, FrameZone::BottomRight}, {{50, 3}, FrameZone::Top},      {{50, 57}, FrameZone::Bottom},
        {{3, 30}, FrameZone::Left},         {{99, 30}, FrameZone::Right},   {{10, 10}, FrameZone::Client},
        {{4, 30}, FrameZone::Client},       {{-1, 0}, FrameZone::Client},   {{100, 30}, FrameZone::Client},
    };
    for (const auto& row : rows)
        EXPECT_EQ(frameZoneAt({100, 60}, row.cursor, 4), row.zone) << row.cursor.x << "," << row.cursor.y;
    EXPECT_EQ(frameZoneAt({100, 60}, {0, 0}, 0), FrameZone::Client);
    EXPECT_EQ(frameZoneAt({3, 3}, {2, 2}, 4), FrameZone::TopLeft);
}

TEST(WindowGeometry, TheDraggedEdgeStopsAtTheMinimum)
{
    const Edges small{100, 100, 150, 130};
    const struct {
        FrameZone dragged;
        Edges kept;
    } rows[] = {
        {FrameZone::Left, {-50, 100, 150, 180}},       {FrameZone::Right, {100, 100, 300, 180}},
        {FrameZone::TopLeft, {-50, 50, 150, 130}},     {FrameZone::TopRight, {100, 50, 300, 130}},
        {FrameZone::BottomLeft, {-50, 100, 150, 180}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(clampedToMinimum(small, row.dragged, {200, 80}), row.kept);
    EXPECT_EQ(clampedToMinimum(small, FrameZone::Right, {50, 30}), small);
    EXPECT_EQ(clampedToMinimum({5, 5, 5, 5}, FrameZone::Bottom, {0, 0}), (Edges{5, 5, 6, 6}));
    const Edges wild{INT32_MAX, INT32_MIN, INT32_MIN, INT32_MAX};
    EXPECT_EQ(clampedToMinimum(wild, FrameZone::Left, {INT32_MAX, 1}).right, INT32_MIN);
}

TEST(WindowGeometry, NewWindowsAreCentredInsideTheWorkArea)
{
    const Rect work{-1920, 40, 1920, 1000};
    EXPECT_EQ(initialPlacement({690, 420}, work), (Rect{-1305, 330, 690, 420}));
    EXPECT_EQ(initialPlacement({3000, 420}, work), (Rect{-1920, 330, 1920, 420}));
    EXPECT_EQ(initialPlacement({0, 5000}, work), (Rect{-961, 40, 1, 1000}));
}

TEST(WindowGeometry, TrackingSizesFollowTheWorkAreaAndTheMinimum)
{
    const TrackingSizes sizes =
        trackingSizes({1920, 0, 1280, 1024}, {1920, 40, 1280, 984}, {800, 2000}, {400, 3000});
    EXPECT_EQ(sizes, (TrackingSizes{{1280, 984}, {0, 40}, {1280, 2000}, {400, 984}}));
}

TEST(WindowGeometry, AScaleIsFoundAtWhichTheWindowFits)
{
    constexpr Size kDialog{690, 420};
    const struct {
        Size room;
        std::int32_t monitor;
        std::int32_t dpi;
    } rows[] = {
        {{1920, 1040}, 96, 96},  {{1920, 1040}, 144, 144}, {{1920, 1040}, 192, 192}, {{1920, 1040}, 240, 237},
        {{1024, 600}, 240, 137}, {{1024, 600}, 120, 120},  {{690, 420}, 96, 96},     {{689, 420}, 96, 95},
        {{690, 300}, 240, 68},   {{100, 100}, 240, 48},    {{-20, 600}, 120, 48},    {{1725, 1050}, 240, 240},
    };
    for (const auto& row : rows)
        EXPECT_EQ(fittingDpi(kDialog, row.room, row.monitor), row.dpi)
            << row.room.width << "@" << row.monitor;
    EXPECT_EQ(fittingDpi({0, 0}, {0, 0}, 144), 144);
    // The scaled length of every size is within the room, and one step more would not be.
    for (std::int32_t width = 300; width < 1400; width += 7) {
        const std::int32_t dpi = fittingDpi({width, 1}, {1024, 600}, 240);
        EXPECT_LE((width * dpi + 48) / 96, 1024);
        EXPECT_TRUE(dpi == 240 || width * (dpi + 1) > 1024 * 96) << width;
    }
}

TEST(WindowGeometry, AWindowIsMovedBackInside)
{
    constexpr Rect kArea{100, 50, 1000, 600};
    EXPECT_EQ(movedInside({200, 60, 300, 200}, kArea), (Rect{200, 60, 300, 200}));
    EXPECT_EQ(movedInside({0, 700, 300, 200}, kArea), (Rect{100, 450, 300, 200}));
    EXPECT_EQ(movedInside({500, 500, 3000, 0}, kArea), (Rect{100, 500, 1000, 1}));
}

TEST(WindowGeometry, ATooltipStaysInsideTheMonitor)
{
    const Rect area{0, 0, 1000, 800};
    EXPECT_EQ(tooltipPlacement({200, 40}, {100, 100}, 20, 4, area), (Rect{100, 120, 200, 40}));
    EXPECT_EQ(tooltipPlacement({200, 40}, {950, 790}, 20, 4, area), (Rect{800, 746, 200, 40}));
    EXPECT_EQ(tooltipPlacement({200, 40}, {-500, -90}, 20, 4, area), (Rect{0, 0, 200, 40}));
    EXPECT_EQ(tooltipPlacement({2000, 900}, {10, 10}, 20, 4, area), (Rect{0, 0, 2000, 900}));
}

} // namespace
} // namespace vela
