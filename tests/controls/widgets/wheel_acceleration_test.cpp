#include "vela/controls/widgets/wheel_acceleration.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(WheelAccelerationTest, FastTurnsOfTheWheelScrollFurtherUntilItRests)
{
    ScrollAcceleration style; // 35 percent a turn within 60 ms, to 6 times; 220 ms reset it
    WheelAcceleration wheel;
    std::uint32_t now = 0xFFFFFFB0; // soon to wrap around
    EXPECT_EQ(wheel.turn(style, now), 100);
    EXPECT_EQ(wheel.turn(style, now += 60), 135);
    EXPECT_EQ(wheel.turn(style, now += 60), 170);
    EXPECT_EQ(wheel.turn(style, now += 219), 170); // neither fast nor a rest
    EXPECT_EQ(wheel.turn(style, now += 220), 100);
    for (int i = 0; i < 20; ++i)
        EXPECT_LE(wheel.turn(style, ++now), 600);
    EXPECT_EQ(wheel.turn(style, ++now), 600);
    style = {true, 2147483647, 2147483647, 60, 220}; // a skin's nonsense
    EXPECT_EQ(wheel.turn(style, ++now), 10000);
    style.enabled = false;
    EXPECT_EQ(wheel.turn(style, ++now), 100);
}

} // namespace
} // namespace vela
