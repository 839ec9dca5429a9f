#include "vela/theme/records/spellings.h"

#include "vela/text.h"

#include <cstddef>

namespace vela {
namespace {

constexpr Spellings kSurfaceModes[] = {
    {SurfaceMode::Flat2d, "flat2d 2d flat"},
    {SurfaceMode::Sculpted3d, "sculpted3d 3d sculpted"},
    {SurfaceMode::Textured, "textured texture material"},
    {SurfaceMode::BitmapPlates, "bitmapplates bitmap plates"},
    {SurfaceMode::WindowsClean, "windowsclean windows clean"},
};
constexpr SurfaceMode kUnknownSurfaceMode = SurfaceMode::Sculpted3d;

// "round" and "rounded" are pills: they were names for full half-circles before there were rounded corners.
constexpr Spellings kShapes[] = {
    {ShapeKind::Rect, "rect rectangle square box"},
    {ShapeKind::RoundedRect, "roundedrect roundedrectangle roundrect win11rounded windows11rounded"},
    {ShapeKind::Pill, "pill capsule round rounded"},
    {ShapeKind::Diamond, "diamond rhombus gem"},
    {ShapeKind::Bevel, "beveled bevel cutcorner chamfer chamfered"},
    {ShapeKind::Octagon, "octagon octagonal"},
    {ShapeKind::Hexagon, "hexagon hexagonal"},
    {ShapeKind::SlantRight, "slantright parallelogram parallelogramright"},
    {ShapeKind::SlantLeft, "slantleft parallelogramleft"},
};

constexpr Spellings kGradientDirections[] = {
    {GradientDirection::Vertical, "vertical down toptobottom"},
    {GradientDirection::VerticalUp, "verticalup up bottomtotop"},
    {GradientDirection::Horizontal, "horizontal right lefttoright"},
    {GradientDirection::HorizontalLeft, "horizontalleft left righttoleft"},
    {GradientDirection::DiagonalDown, "diagonaldown downright diagonal"},
    {GradientDirection::DiagonalDownReverse, "diagonaldownreverse downleft diagonalreverse"},
    {GradientDirection::DiagonalUp, "diagonalup upright"},
    {GradientDirection::DiagonalUpReverse, "diagonalupreverse upleft"},
};

constexpr Spellings kGradientKinds[] = {
    {GradientKind::Linear, "linear"},
    {GradientKind::Reflected, "reflected mirror mirrored"},
    {GradientKind::Radial, "radial circle circular"},
    {GradientKind::Diamond, "diamond"},
    {GradientKind::Conic, "conic angular"},
};

constexpr Spellings kMaterialPresets[] = {
    {MaterialPreset::None, "none matte flat"},
    {MaterialPreset::Glass, "glass"},
    {MaterialPreset::FrostedGlass, "frostedglass frosted blurredglass"},
    {MaterialPreset::Gloss, "gloss glossy"},
    {MaterialPreset::Metal, "metal"},
    {MaterialPreset::BrushedMetal, "brushedmetal brushed"},
    {MaterialPreset::Plastic, "plastic"},
    {MaterialPreset::Rubber, "rubber"},
    {MaterialPreset::Paper, "paper"},
    {MaterialPreset::CarbonFiber, "carbonfiber carbon"},
    {MaterialPreset::ObsidianGlass, "obsidianglass blackglass bottleglass bottleblack blackgloss"},
    {MaterialPreset::BloodGloss, "bloodgloss bloodglass carmineglass carminegloss"},
    {MaterialPreset::AmberGlass, "amberglass amberresin resinglass resin honeyglass"},
    {MaterialPreset::LuminousGlass, "luminousglass softglass neonglass neuronglass lightglass glowglass"},
    {MaterialPreset::LayeredGlass, "layeredglass layered photorealglass realglass deepglass aaaglass"},
    {MaterialPreset::Gemstone, "gemstone gemglass jewel crystal facetedglass faceted"},
    {MaterialPreset::ObsidianRelief, "obsidianrelief obsidian3d carvedobsidian volcanicglass blackstone"},
    {MaterialPreset::StoneGranite, "stonegranite granite zula"},
    {MaterialPreset::StoneMarble, "stonemarble marble mramor"},
};

// "cracred" is a misspelling that skins in use carry.
constexpr Spellings kMaterialFinishes[] = {
    {MaterialFinish::Default, "default auto natural"},
    {MaterialFinish::Polished, "polished mirror highpolish"},
    {MaterialFinish::Brushed, "brushed linearbrushed hairline"},
    {MaterialFinish::Satin, "satin softsatin semimatte"},
    {MaterialFinish::Matte, "matte flat deadmatte"},
    {MaterialFinish::Rough, "rough raw naturalrough"},
    {MaterialFinish::Cracked, "cracked cracred fractured crazed"},
    {MaterialFinish::Hammered, "hammered beaten peened"},
    {MaterialFinish::Etched, "etched engraved engravedlines"},
    {MaterialFinish::Frosted, "frosted sandblasted milkglass"},
    {MaterialFinish::WetGloss, "wetgloss wet glossywet lacquered"},
};

constexpr Spellings kMappingSpaces[] = {
    {MappingSpace::Local, "local control surface rect rectangle"},
    {MappingSpace::Global, "global world window screen tiledglobal globaltiled worldspace windowspace"},
};

constexpr Spellings kAlphaHitModes[] = {
    {AlphaHitMode::ShapeFallback, "fallback fallbackshape shape visualonly bitmapvisualonly"},
    {AlphaHitMode::SkinAlphaHit, "skinalphahit skinalphahittest alphahit bitmapalphahit"},
    {AlphaHitMode::AlphaLayout, "alphalayout skinalphalayout alpha bitmapalphashape bitmapalphalayout"},
    {AlphaHitMode::MaskLayout, "mask maskalpha maskalphalayout bitmapmaskedlayout"},
};

constexpr Spellings kTintModes[] = {
    {TintMode::None, "none off false no"},
    {TintMode::Monochrome, "monochrome mono monochromemask mask singlecolor"},
    {TintMode::LumaMask, "lumamask luma luminance luminancemask"},
    {TintMode::AlphaMask, "alphamask alpha alphatint packedalpha"},
    {TintMode::Colorize, "colorize tint tintcolored colourize colored multiply mul"},
    {TintMode::PaletteMap, "palettemap palette colorstop gradientmap"},
};

constexpr Spellings kMaskChannels[] = {
    {MaskChannel::Red, "red"},
    {MaskChannel::Green, "green"},
    {MaskChannel::Blue, "blue"},
    {MaskChannel::Alpha, "alpha"},
    {MaskChannel::Brightness, "brightness value"},
    {MaskChannel::Rgb, "rgb"},
};

// Styles know no checked state of their own: a checked control paints as an active one.
constexpr Spellings kVisualStates[] = {
    {VisualState::Normal, "normal"},         {VisualState::Hot, "hot hover"},
    {VisualState::Pressed, "pressed down"},  {VisualState::Disabled, "disabled"},
    {VisualState::Active, "active checked"},
};

constexpr Spellings kBooleans[] = {
    {true, "true yes on"},
    {false, "false no off"},
};

constexpr Spellings kWeights[] = {
    {100, "thin"}, {300, "light"},       {400, "normal regular"}, {500, "medium"}, {600, "semibold demibold"},
    {700, "bold"}, {900, "heavy black"},
};

// A tint that is only switched on colours the bitmap through.
constexpr Spellings kTintSwitches[] = {
    {TintMode::Colorize, "true yes on"},
    {TintMode::None, "false no none off"},
};

constexpr std::uint32_t kNameEnd = 0xFFFFFFFF; // no character

// The next character of the text that counts in names, in lower case.
std::uint32_t nextNameCharacter(std::wstring_view& text) noexcept
{
    while (!text.empty()) {
        const wchar_t c = text.front();
        text.remove_prefix(1);
        if (c != L'_' && c != L'-' && !isSpace(c))
            return static_cast<std::uint32_t>(lowerAscii(c));
    }
    return kNameEnd;
}

} // namespace

const Vocabulary kSurfaceModeWords = {"surface mode", kSurfaceModes};
const Vocabulary kShapeWords = {"shape", kShapes};
const Vocabulary kGradientDirectionWords = {"gradient direction", kGradientDirections};
const Vocabulary kGradientKindWords = {"gradient kind", kGradientKinds};
const Vocabulary kMaterialPresetWords = {"material", kMaterialPresets};
const Vocabulary kMaterialFinishWords = {"finish", kMaterialFinishes};
const Vocabulary kMappingSpaceWords = {"mapping", kMappingSpaces};
const Vocabulary kAlphaHitModeWords = {"geometry mode", kAlphaHitModes};
const Vocabulary kTintModeWords = {"tint mode", kTintModes};
const Vocabulary kMaskChannelWords = {"mask channel", kMaskChannels};
const Vocabulary kVisualStateWords = {"state", kVisualStates};
const Vocabulary kBooleanWords = {"switch", kBooleans};
const Vocabulary kWeightWords = {"weight", kWeights};
const Vocabulary kTintSwitchWords = {"tint switch", kTintSwitches};

std::wstring normalizedName(std::wstring_view text)
{
    std::wstring name;
    name.reserve(text.size());
    for (std::uint32_t c = nextNameCharacter(text); c != kNameEnd; c = nextNameCharacter(text))
        name += static_cast<wchar_t>(c);
    return name;
}

bool sameName(std::wstring_view left, std::wstring_view right) noexcept
{
    for (;;) {
        const std::uint32_t c = nextNameCharacter(left);
        if (c != nextNameCharacter(right))
            return false;
        if (c == kNameEnd)
            return true;
    }
}

bool isName(std::wstring_view text, std::string_view word) noexcept
{
    for (const char c : word) {
        if (nextNameCharacter(text) != static_cast<std::uint32_t>(lowerAscii(static_cast<wchar_t>(c))))
            return false;
    }
    return nextNameCharacter(text) == kNameEnd;
}

std::optional<std::uint16_t> parseWord(const Vocabulary& vocabulary, std::wstring_view text) noexcept
{
    for (const Spellings& row : vocabulary.rows) {
        if (anyWord(row.words, [text](std::string_view word) { return isName(text, word); }))
            return row.value;
    }
    return std::nullopt;
}

SurfaceMode surfaceModeFrom(std::wstring_view text) noexcept
{
    return parseWord<SurfaceMode>(text).value_or(kUnknownSurfaceMode);
}

} // namespace vela
