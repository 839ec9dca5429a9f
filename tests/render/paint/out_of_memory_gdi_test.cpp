// Painting where memory ends at any point: nothing is thrown, what comes after is right.
#include "tests/support/canvas_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/paint/paint.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <new>

namespace {

// How many allocations succeed until one fails; none fails below 0.
int successesLeft = -1;

} // namespace

[[gnu::noinline]] void* operator new(std::size_t size)
{
    if (successesLeft == 0) {
        successesLeft = -1;
        throw std::bad_alloc();
    }
    if (successesLeft > 0)
        --successesLeft;
    if (void* const memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace vela {
namespace {

using testing::Canvas;

constexpr Size kCanvas{160, 90};

SurfaceStyle richStyle(std::uint32_t seed)
{
    SurfaceStyle style;
    style.shape = ShapeKind::Hexagon;
    style.material = MaterialPreset::LuminousGlass;
    style.materialEnabled = style.useGradient = style.useNoise = style.showInnerShadow = style.showGlow =
        style.showShadow = style.showOutline = true;
    style.gradientKind = GradientKind::Conic;
    style.noiseSeed = seed;
    return style;
}

std::vector<Pixel> painted(const std::function<void(HDC)>& paint, bool cachesPictures)
{
    Canvas canvas(kCanvas, hexColor(0x304050));
    const PaintContextBinding context(canvas.dc(), {.cachesPictures = cachesPictures});
    paint(canvas.dc());
    return canvas.pixels();
}

// Fails each of the allocations that painting makes, one a time. prepare(number) gives a painting of what was
// never painted before.
template <typename Prepare>
void failEveryAllocation(Prepare&& prepare)
{
    std::uint32_t number = 0;
    for (bool hasFailed = true; hasFailed; ++number) {
        const auto paint = prepare(number);
        Canvas canvas(kCanvas, hexColor(0x304050));
        successesLeft = static_cast<int>(number);
        paint(canvas.dc());
        hasFailed = successesLeft < 0;
        successesLeft = -1;
        for (int time = 0; time < 3; ++time) // seen once, stored, found
            ASSERT_EQ(painted(paint, true), painted(paint, false)) << number;
    }
    EXPECT_GT(number, 3U);
}

TEST(OutOfMemory, LeavesASurfaceUnpaintedAndTheNextPaintWhole)
{
    failEveryAllocation([](std::uint32_t number) {
        return [style = richStyle(number + 90'000)](HDC dc) {
            paintSurface(dc, {10, 10, 120, 40}, style);
            paintControlSurface(dc, {10, 50, 120, 30}, style);
            paintProgressFill(dc, {10, 80, 140, 8}, style, 70.5F);
        };
    });
}

TEST(OutOfMemory, LeavesTextUnpaintedAndTheNextPaintWhole)
{
    failEveryAllocation([](std::uint32_t number) {
        const FontSpec font{L"Segoe UI", 10, 400, hexColor(0xF0F6F4), hexColor(0x808080)};
        return [font, text = L"Příliš žluťoučký kůň " + std::to_wstring(number)](HDC dc) {
            drawText(dc, {10, 10, 140, 60}, text, font, 96,
                     {TextTone::Enabled, TextAlign::Center, TextWrap::Words});
            drawUnclippedLine(dc, {10, 70, 140, 20}, text, font, 96, hexColor(0xFFFFFF));
        };
    });
}

} // namespace
} // namespace vela
