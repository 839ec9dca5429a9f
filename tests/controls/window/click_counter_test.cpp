#include "vela/controls/window/click_counter.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(ClickCounterTest, PressesInOnePlaceCountUpToThree)
{
    ClickCounter counter;
    const struct {
        Point at;
        std::uint64_t time;
        std::int32_t clicks;
    } rows[] = {{{10, 10}, 1000, 1}, {{12, 9}, 1400, 2},  {{10, 10}, 1800, 3}, {{10, 10}, 1900, 1},
                {{10, 10}, 2401, 1}, {{30, 10}, 2500, 1}, {{30, 10}, 2600, 2}};
    for (const auto& row : rows)
        EXPECT_EQ(counter.press(row.at, row.time, 500, {4, 4}), row.clicks) << row.time;
}

} // namespace
} // namespace vela
