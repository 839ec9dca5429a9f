// The closed sets of words that skins choose from. The numbers are stored and compared, so their order is
// fixed; their spellings stand in one table each (spellings.h).
#pragma once

#include <cstdint>

namespace vela {

enum class SurfaceMode : std::uint8_t { Flat2d, Sculpted3d, Textured, BitmapPlates, WindowsClean };

enum class ShapeKind : std::uint8_t {
    Rect,
    RoundedRect,
    Pill,
    Diamond,
    Bevel,
    Octagon,
    Hexagon,
    SlantRight,
    SlantLeft,
};

// Odd values are the reversed directions.
enum class GradientDirection : std::uint8_t {
    Vertical,
    VerticalUp,
    Horizontal,
    HorizontalLeft,
    DiagonalDown,
    DiagonalDownReverse,
    DiagonalUp,
    DiagonalUpReverse,
};

enum class GradientKind : std::uint8_t { Linear, Reflected, Radial, Diamond, Conic };

enum class MaterialPreset : std::uint8_t {
    None,
    Glass,
    FrostedGlass,
    Gloss,
    Metal,
    BrushedMetal,
    Plastic,
    Rubber,
    Paper,
    CarbonFiber,
    ObsidianGlass,
    BloodGloss,
    AmberGlass,
    LuminousGlass,
    LayeredGlass,
    Gemstone,
    ObsidianRelief,
    StoneGranite,
    StoneMarble,
};

enum class MaterialFinish : std::uint8_t {
    Default,
    Polished,
    Brushed,
    Satin,
    Matte,
    Rough,
    Cracked,
    Hammered,
    Etched,
    Frosted,
    WetGloss,
};

// Local: texture coordinates relative to the surface. Global: continuous across the window.
enum class MappingSpace : std::uint8_t { Local, Global };

// How a bitmap-skinned surface answers hit tests and layout.
enum class AlphaHitMode : std::uint8_t { ShapeFallback, SkinAlphaHit, AlphaLayout, MaskLayout };

enum class TintMode : std::uint8_t { None, Monochrome, LumaMask, AlphaMask, Colorize, PaletteMap };

enum class MaskChannel : std::uint8_t { Red, Green, Blue, Alpha, Brightness, Rgb };

// How much the machine is asked to do: Reduced in a remote session, with system animations off or on battery
// saver. A value beside the theme; skins cannot set it.
enum class PerformanceProfile : std::uint8_t { Full, Reduced };

// The combined interaction state of a control, in the order in which styles store it.
enum class VisualState : std::uint8_t { Normal, Hot, Pressed, Disabled, Active };
inline constexpr int kVisualStateCount = 5;

enum class PaletteRole : std::uint8_t {
    Frame,
    Shell,
    Panel,
    Header,
    Control,
    ControlHot,
    ControlPressed,
    Border,
    Accent,
    AccentHot,
    Text,
    TextHot,
    MutedText,
    DisabledText,
    DisabledFill,
};
inline constexpr int kPaletteRoleCount = 15;

} // namespace vela
