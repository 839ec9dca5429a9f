#include "vela/theme/derive/mode_traits.h"

#include <iterator>

namespace vela::derive {
namespace {

constexpr ElevationTraits kUnshaded = {0, 0, 0, 0};

// In the order of SurfaceMode.
constexpr ModeTraits kModeTraits[] = {
    {.materials = false, // Flat2d: colour and line alone
     .leastDepth = 0,
     .noiseOpacity = 0,
     .shadowOffset = 0,
     .elevations = {kUnshaded, kUnshaded, kUnshaded, kUnshaded, kUnshaded},
     .controlShape = ShapeKind::RoundedRect,
     .panelShape = ShapeKind::Rect,
     .trackShape = ShapeKind::RoundedRect,
     .slimTracks = false,
     .flushCaptionButtons = true},
    {.materials = true, // Sculpted3d: carved and lit
     .leastDepth = 56,
     .noiseOpacity = 7,
     .shadowOffset = 2,
     .elevations = {{0.018F, 70, 0, 0},
                    {0.010F, 0, 0, 0},
                    {0.045F, 100, 0, 110},
                    {-0.030F, 100, 110, 40},
                    {-0.020F, 80, 120, 0}},
     .controlShape = ShapeKind::RoundedRect,
     .panelShape = ShapeKind::RoundedRect,
     .trackShape = ShapeKind::Pill,
     .slimTracks = false,
     .flushCaptionButtons = false},
    {.materials = true, // Textured: the material carries the look, the elevation only hints
     .leastDepth = 0,
     .noiseOpacity = 0,
     .shadowOffset = 1,
     .elevations =
         {{0.008F, 30, 0, 0}, kUnshaded, {0.018F, 60, 0, 70}, {-0.018F, 60, 70, 0}, {-0.010F, 40, 60, 0}},
     .controlShape = ShapeKind::RoundedRect,
     .panelShape = ShapeKind::RoundedRect,
     .trackShape = ShapeKind::RoundedRect,
     .slimTracks = false,
     .flushCaptionButtons = false},
    {.materials = false, // BitmapPlates: plain, the plates bring everything else
     .leastDepth = 0,
     .noiseOpacity = 0,
     .shadowOffset = 0,
     .elevations = {kUnshaded, kUnshaded, kUnshaded, kUnshaded, kUnshaded},
     .controlShape = ShapeKind::Rect,
     .panelShape = ShapeKind::Rect,
     .trackShape = ShapeKind::Rect,
     .slimTracks = false,
     .flushCaptionButtons = false},
    {.materials =
         false, // WindowsClean: the shadow is the slightly darker bottom edge of the system's buttons
     .leastDepth = 0,
     .noiseOpacity = 0,
     .shadowOffset = 1,
     .elevations = {kUnshaded, kUnshaded, {0, 0, 0, 22}, kUnshaded, kUnshaded},
     .controlShape = ShapeKind::RoundedRect,
     .panelShape = ShapeKind::Rect,
     .trackShape = ShapeKind::Pill,
     .slimTracks = true,
     .flushCaptionButtons = true},
};

} // namespace

const ModeTraits& traitsOf(SurfaceMode mode) noexcept
{
    const auto index = static_cast<std::size_t>(mode);
    return kModeTraits[index < std::size(kModeTraits) ? index
                                                      : static_cast<std::size_t>(SurfaceMode::Sculpted3d)];
}

} // namespace vela::derive
