#include "vela/render/gdi/paint_context.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

// Contexts are told apart by the device context alone; nobody looks inside one.
HDC deviceContext(std::uintptr_t number) { return reinterpret_cast<HDC>(number); }

TEST(PaintContextTest, TheInnermostBindingOfADeviceContextCounts)
{
    const HDC window = deviceContext(8);
    const HDC copy = deviceContext(16);
    const PaintContextBinding painting(window, {.time = 500, .profile = PerformanceProfile::Reduced});
    {
        const PaintContextBinding inherited(copy, paintContext(window));
        const PaintContextBinding whole(window, {.time = 500, .cachesPictures = false});
        EXPECT_FALSE(paintContext(window).cachesPictures);
        EXPECT_EQ(paintContext(window).time, 500u);
        EXPECT_TRUE(paintContext(copy).cachesPictures);
        EXPECT_EQ(paintContext(copy).profile, PerformanceProfile::Reduced);
    }
    EXPECT_TRUE(paintContext(window).cachesPictures);
    EXPECT_EQ(paintContext(window).time, 500u);
    // What nobody bound is painted at rest, as well as it can be.
    EXPECT_EQ(paintContext(copy).time, 0u);
    EXPECT_EQ(paintContext(copy).profile, PerformanceProfile::Full);
}

} // namespace
} // namespace vela
