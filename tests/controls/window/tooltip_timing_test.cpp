#include "vela/controls/window/tooltip_timing.h"

#include "vela/controls/tree/control.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(TooltipTimingTest, ATooltipComesAfterTheWholeDelayOfRest)
{
    const Control control(L"c", {});
    TooltipTiming timing;
    timing.pointerAt(&control, {5, 5}, 1000);
    EXPECT_EQ(timing.due(1649, 650), nullptr);
    EXPECT_EQ(timing.due(1650, 650), &control);
    timing.pointerAt(&control, {6, 5}, 1700);
    EXPECT_EQ(timing.due(1700, 650), &control);
    timing.dismiss();
    timing.pointerAt(&control, {7, 5}, 1800);
    EXPECT_EQ(timing.due(9000, 650), nullptr);
    // Away and back starts over; every move while waiting does, too.
    timing.pointerAt(nullptr, {50, 5}, 9000);
    timing.pointerAt(&control, {5, 5}, 9100);
    timing.pointerAt(&control, {6, 5}, 9600);
    EXPECT_EQ(timing.due(10200, 650), nullptr);
    EXPECT_EQ(timing.due(10250, 650), &control);
    timing.forget(control);
    EXPECT_EQ(timing.due(20000, 650), nullptr);
}

} // namespace
} // namespace vela
