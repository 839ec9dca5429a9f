// Painting with stored pictures against painting without: the same pixels, whatever lies beneath and is
// clipped.
#include "tests/support/canvas_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/paint/paint.h"
#include "vela/render/pixels/picture_store.h"

#include <functional>
#include <gtest/gtest.h>

namespace vela {
namespace {

using testing::Canvas;

constexpr Size kCanvas{120, 80};

SurfaceStyle layeredStyle()
{
    SurfaceStyle style;
    style.gradientStart = hexColor(0x3C6E71);
    style.gradientEnd = hexColor(0x101820);
    style.materialDepth = 120;
    style.noiseOpacity = 40;
    style.innerShadow = 160;
    style.shadowOffsetX = 3;
    style.opacity = 200;
    style.showShadow = style.showInnerShadow = style.showGlow = style.useGradient = style.useNoise = true;
    return style;
}

SurfaceStyle roundFace()
{
    SurfaceStyle style = layeredStyle();
    style.border = hexColor(0xC0D0E0);
    style.drawBorder = true;
    return style;
}

void paintScene(HDC dc, Point at)
{
    static const SurfaceStyle style = layeredStyle();
    const FontSpec font{L"Segoe UI", 10, 400, hexColor(0xF0F6F4), hexColor(0x808080)};
    const Rect rect{at.x, at.y, 90, 40};
    paintSurface(dc, rect, style);
    static const SurfaceStyle face = roundFace();
    paintControlSurface(dc, {at.x + 8, at.y + 20, 60, 30}, face);
    drawText(dc, rect, L"Příliš žluťoučký", font, 96, {TextTone::Enabled, TextAlign::Center});
    drawText(dc, rect, L"kůň", font, 96, {TextTone::Disabled, TextAlign::Right});
}

// One way in which a picture of before could be wrong for now.
struct Step {
    Color ground;
    Point at;
    std::function<void(HDC)> clip;
};

void clipCross(HDC dc)
{
    const OwnedRegion region(::CreateRectRgn(20, 0, 40, 80));
    const OwnedRegion across(::CreateRectRgn(0, 30, 120, 40));
    ::CombineRgn(region.get(), region.get(), across.get(), RGN_OR);
    ::SelectClipRgn(dc, region.get());
}

void clipLeft(HDC dc) { ::IntersectClipRect(dc, 0, 0, 50, 80); }
void shiftOrigin(HDC dc) { ::SetViewportOrgEx(dc, 7, 3, nullptr); }

TEST(FaceStoreTest, EveryPixelIsTheSameWithAndWithout)
{
    const Step steps[] = {
        {hexColor(0x304050), {10, 10}, {}},          {hexColor(0x304050), {10, 10}, clipCross},
        {hexColor(0x304050), {10, 10}, {}},          {hexColor(0x304050), {10, 10}, clipLeft},
        {hexColor(0x304051), {10, 10}, {}},          {hexColor(0x304050), {11, 10}, {}},
        {hexColor(0x304050), {10, 10}, shiftOrigin}, {hexColor(0x304050), {60, 50}, {}},
        {hexColor(0x304050), {-20, -8}, {}},
    };
    // Thrice: once seen, once stored, once used.
    for (int round = 0; round < 3; ++round) {
        for (const Step& step : steps) {
            Canvas with(kCanvas, step.ground);
            Canvas without(kCanvas, step.ground);
            for (Canvas* canvas : {&without, &with}) {
                const PaintContextBinding context(canvas->dc(), {.cachesPictures = canvas == &with});
                if (step.clip)
                    step.clip(canvas->dc());
                paintScene(canvas->dc(), step.at);
            }
            ASSERT_EQ(with.pixels(), without.pixels())
                << "round " << round << ", step " << &step - std::begin(steps);
        }
    }
}

// Whatever the cause of a repaint, a surface is composed for the first two times and then found.
TEST(FaceStoreTest, AFaceIsComposedTwiceAndThenFound)
{
    SurfaceStyle style = layeredStyle();
    style.noiseSeed = 4711; // no other test paints it
    const auto paintAt = [&style](Point at, Color ground) {
        Canvas canvas(kCanvas, ground);
        paintSurface(canvas.dc(), {at.x, at.y, 60, 30}, style);
        return canvas.pixels();
    };
    const std::size_t before = pictureStore().made();
    const auto first = paintAt({5, 5}, hexColor(0x304050));
    EXPECT_EQ(pictureStore().made(), before);
    for (int time = 0; time < 3; ++time)
        EXPECT_EQ(paintAt({5, 5}, hexColor(0x304050)), first);
    paintAt({31, 17},
            hexColor(0x908070)); // the picture does not depend on what lies beneath, nor on its place
    EXPECT_EQ(pictureStore().made(), before + 1);

    style.uvMapping = MappingSpace::Global; // but now it does
    for (int time = 0; time < 3; ++time) {
        paintAt({5, 5}, hexColor(0x304050));
        paintAt({6, 5}, hexColor(0x304050));
    }
    EXPECT_EQ(pictureStore().made(), before + 3);
}

} // namespace
} // namespace vela
