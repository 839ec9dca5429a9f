#include "vela/render/materials/material_cache.h"

#include "tests/render/materials/material_testing.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

constexpr Rect kPlace{30, 40, 200, 100};

TEST(MaterialOverlayCache, RendersOnceAndAMovingLightIntoOnePlace)
{
    MaterialOverlayCache cache(2 * 200 * 100);
    const auto ask = [&cache](const SurfaceStyle& style, float phase) {
        const auto constants = materialConstants(style, kPlace, phase, PerformanceProfile::Full);
        return cache.ensure(constants, [](const PixelView& pixels) { return pixels.row(99)[199] = 7, true; });
    };
    SurfaceStyle style = carved(MaterialPreset::LuminousGlass);
    const PixelView view = ask(style, 0.25F);
    EXPECT_EQ(view.size, (Size{200, 100}));
    EXPECT_EQ(ask(style, 0.25F).pixels, view.pixels);
    EXPECT_EQ(cache.rendered(), 1u);
    EXPECT_EQ(ask(style, 0.5F).pixels, view.pixels);
    EXPECT_EQ(cache.rendered(), 2u);
    for (int tint = 0; tint < 5; ++tint) {
        style.materialTint = static_cast<Color>(tint);
        ask(style, 0.5F);
    }
    EXPECT_EQ(cache.rendered(), 7u);
    EXPECT_EQ(cache.size(), 2u); // as many as there is room for
}

TEST(MaterialOverlayCache, TriesAgainAfterARenderingThatFailed)
{
    MaterialOverlayCache cache(200 * 100);
    const auto ask = [&cache](const Rect& rect, bool works) {
        const SurfaceStyle style = carved(MaterialPreset::Metal);
        const auto constants = materialConstants(style, rect, 0, PerformanceProfile::Full);
        return cache.ensure(constants, [works](const PixelView&) { return works; }).pixels != nullptr;
    };
    EXPECT_FALSE(ask(kPlace, false));
    EXPECT_TRUE(ask(kPlace, true));
    EXPECT_TRUE(ask(kPlace, false));           // cached
    EXPECT_FALSE(ask({0, 0, 201, 100}, true)); // there is no room for it at all
}

} // namespace
} // namespace vela
