#include "vela/render/surface/control_painter.h"

#include "tests/support/canvas_gdi.h"
#include "vela/render/gdi/paint_context.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

using testing::Canvas;

// Its face is painted on a copy of what lies beneath, which must know what paint it is part of.
TEST(ControlPainterTest, AMaskedFaceShowsTheLightOfItsPaint)
{
    SurfaceStyle style;
    style.shape = ShapeKind::RoundedRect;
    style.material = MaterialPreset::LuminousGlass;
    style.materialEnabled = true;
    style.backlightOpacity = 255;
    style.animationSpeed = 600;
    const auto pictureAt = [&style](std::uint64_t time) {
        Canvas canvas({80, 50}, hexColor(0x203040));
        const PaintContextBinding context(canvas.dc(), {.time = time});
        render::paintControlSurface(canvas.dc(), {5, 5, 70, 40}, style);
        return canvas.pixels();
    };
    EXPECT_EQ(pictureAt(250), pictureAt(250));
    EXPECT_NE(pictureAt(250), pictureAt(500));
}

} // namespace
} // namespace vela
