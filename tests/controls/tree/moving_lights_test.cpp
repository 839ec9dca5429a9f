#include "vela/controls/tree/moving_lights.h"

#include "tests/controls/tree/fake_window.h"
#include "vela/render/materials/material_clock.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

constexpr auto kFull = PerformanceProfile::Full;
constexpr auto kReduced = PerformanceProfile::Reduced;
constexpr std::uint32_t kTick = 125;

// Ticks until lights move; how many it took.
int ticksToNextPicture(MovingLights& lights, std::uint32_t microsecondsOfPicture)
{
    lights.painted(microsecondsOfPicture);
    for (int ticks = 1; ticks < 1000; ++ticks)
        if (lights.tick(kTick, kFull))
            return ticks;
    return 0;
}

TEST(MovingLights, TakeASmallShareOfTheProcessorWhateverAPictureCosts)
{
    MovingLights lights;
    EXPECT_TRUE(lights.tick(kTick, kFull));
    EXPECT_TRUE(lights.isPaintingDue());
    EXPECT_EQ(ticksToNextPicture(lights, 900), 1);
    EXPECT_EQ(ticksToNextPicture(lights, 2'200), 1);           // 122 ms at the least
    EXPECT_EQ(ticksToNextPicture(lights, 2'300), 2);           // 127 ms
    EXPECT_EQ(ticksToNextPicture(lights, 9'000), 4);           // 500 ms
    EXPECT_EQ(ticksToNextPicture(lights, 900), 1);             // and recover
    EXPECT_EQ(lights.time(), kTick * (1 + 1 + 1 + 2 + 4 + 1)); // at the same speed, in larger steps
}

TEST(MovingLights, RestWhereAnimationsAreNotWanted)
{
    MovingLights lights;
    lights.tick(kTick, kFull);
    lights.painted(100);
    const std::uint64_t time = lights.time();
    EXPECT_TRUE(lights.tick(kTick, kReduced)); // painted once more, in the reduced look
    EXPECT_FALSE(lights.isPaintingDue());
    for (int i = 0; i < 50; ++i)
        EXPECT_FALSE(lights.tick(kTick, kReduced));
    EXPECT_EQ(lights.time(), time);
    EXPECT_TRUE(lights.tick(kTick, kFull));
}

TEST(MovingLights, GoOnWhereTheyWereAfterALongSleep)
{
    MovingLights lights;
    EXPECT_TRUE(lights.tick(4'000'000'000U, kFull));
    EXPECT_LE(lights.time(), 1000u);
}

TEST(MovingLights, AreRepaintedAloneAndOnlyWhereTheyCanBeSeen)
{
    FakeWindow window({300, 200});
    const auto addPanel = [&](const wchar_t* id, const Rect& place, std::int32_t speed) {
        SurfaceStyle style;
        style.material = MaterialPreset::LuminousGlass;
        style.materialEnabled = true;
        style.animationSpeed = speed;
        Panel& panel = window.root.addControl(std::make_unique<Panel>(id, place));
        panel.setSurface(style);
        return &panel;
    };
    addPanel(L"still", {0, 0, 300, 50}, 0);
    Panel* const lit = addPanel(L"lit", {10, 60, 80, 40}, 12);
    window.invalidated.clear();

    EXPECT_TRUE(showsMovingLight(window.root));
    repaintMovingLights(window.root);
    EXPECT_EQ(window.invalidated, (std::vector<Rect>{{10, 60, 80, 40}}));

    lit->setVisible(false);
    window.invalidated.clear();
    EXPECT_FALSE(showsMovingLight(window.root));
    repaintMovingLights(window.root);
    EXPECT_TRUE(window.invalidated.empty());
}

} // namespace
} // namespace vela
