// What the surface modes promise of every surface that is derived in them.
#include "tests/theme/records/surface_walk.h"
#include "vela/theme/color/oklab.h"
#include "vela/theme/derive/derive_style_sheet.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

using testing_surfaces::visitSurfaces;

Theme themeIn(SurfaceMode mode)
{
    Theme theme;
    theme.surfaceMode = mode;
    theme.materials.surface = MaterialPreset::ObsidianRelief;
    theme.materials.control = MaterialPreset::LayeredGlass;
    theme.materials.accent = MaterialPreset::Gemstone;
    return theme;
}

constexpr SurfaceMode kModes[] = {SurfaceMode::Flat2d, SurfaceMode::Sculpted3d, SurfaceMode::Textured,
                                  SurfaceMode::BitmapPlates, SurfaceMode::WindowsClean};

TEST(DerivedSurfaces, AreNothingButColourAndLineInThePlainModes)
{
    for (const SurfaceMode mode :
         {SurfaceMode::Flat2d, SurfaceMode::BitmapPlates, SurfaceMode::WindowsClean}) {
        int surfaces = 0;
        visitSurfaces(deriveStyleSheet(themeIn(mode)),
                      [&](const std::string& path, const SurfaceStyle& surface, const ShapeKind*) {
                          ++surfaces;
                          EXPECT_FALSE(surface.useGradient) << path;
                          EXPECT_FALSE(surface.useNoise) << path;
                          EXPECT_FALSE(surface.materialEnabled) << path;
                          EXPECT_FALSE(surface.showInnerShadow) << path;
                          EXPECT_FALSE(surface.showGlow) << path;
                          EXPECT_EQ(surface.materialDepth, 0) << path;
                          EXPECT_FALSE(surface.showShadow && mode != SurfaceMode::WindowsClean) << path;
                      });
        EXPECT_GT(surfaces, 200);
    }
}

TEST(DerivedSurfaces, AreCarvedAndLitWhenSculpted)
{
    const StyleSheet sheet = deriveStyleSheet(themeIn(SurfaceMode::Sculpted3d));
    const auto& button = sheet.find<ButtonStyle>(L"primary").surface;
    const auto lightness = [](Color color) { return oklabOf(color).lightness; };
    EXPECT_TRUE(button.normal.useGradient);
    EXPECT_GT(lightness(button.normal.gradientStart), lightness(button.normal.gradientEnd));
    EXPECT_TRUE(button.normal.showShadow);
    EXPECT_FALSE(button.normal.showInnerShadow);
    EXPECT_GT(button.normal.materialDepth, 0);

    EXPECT_LT(lightness(button.pressed.gradientStart), lightness(button.pressed.gradientEnd));
    EXPECT_TRUE(button.pressed.showInnerShadow);
    EXPECT_EQ((button.pressed.materialLightAngle - button.normal.materialLightAngle + 360) % 360, 180);

    const SurfaceStyle& field = sheet.find<TextInputStyle>(kDefaultVariant).surface;
    EXPECT_TRUE(field.showInnerShadow);
    EXPECT_LT(lightness(field.gradientStart), lightness(field.gradientEnd));
    EXPECT_TRUE(sheet.find<PopupStyle>(kDefaultVariant).surface.useNoise);
}

TEST(DerivedSurfaces, AreReliefEvenWhereATexturelessThemeIsSculpted)
{
    Theme theme = themeIn(SurfaceMode::Sculpted3d);
    theme.materials.enabled = false;
    theme.materials.materialDepth = 0;
    const auto button = deriveStyleSheet(theme).find<ButtonStyle>(kDefaultVariant).surface;
    EXPECT_TRUE(button.normal.useGradient);
    EXPECT_GT(button.normal.materialDepth, 0);
}

TEST(DerivedSurfaces, HaveTheMaterialOfTheirRole)
{
    const StyleSheet sheet = deriveStyleSheet(themeIn(SurfaceMode::Textured));
    const struct {
        const char* part;
        const SurfaceStyle& surface;
        MaterialPreset material;
    } rows[] = {
        {"panel", sheet.find<PanelStyle>(kDefaultVariant).surface, MaterialPreset::ObsidianRelief},
        {"popup", sheet.find<PopupStyle>(L"danger").surface, MaterialPreset::ObsidianRelief},
        {"title bar", sheet.find<ChromeTitleBarStyle>(kDefaultVariant).surface,
         MaterialPreset::ObsidianRelief},
        {"button", sheet.find<ButtonStyle>(kDefaultVariant).surface.hot, MaterialPreset::LayeredGlass},
        {"primary button", sheet.find<ButtonStyle>(L"primary").surface.normal, MaterialPreset::Gemstone},
        {"checked box", sheet.find<CheckBoxStyle>(kDefaultVariant).boxChecked, MaterialPreset::Gemstone},
        {"badge", sheet.find<PopupStyle>(kDefaultVariant).icon, MaterialPreset::Gemstone},
        {"progress", sheet.find<ProgressBarStyle>(kDefaultVariant).fill, MaterialPreset::Gemstone},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.surface.material, row.material) << row.part;
        EXPECT_TRUE(row.surface.materialEnabled) << row.part;
    }
}

TEST(DerivedSurfaces, HaveNoMaterialWhenTheThemeSwitchesItOffOrGivesItNoStrength)
{
    Theme off = themeIn(SurfaceMode::Sculpted3d);
    off.materials.enabled = false;
    Theme weak = themeIn(SurfaceMode::Textured);
    weak.materials.materialStrength = 0;
    for (const Theme& theme : {off, weak})
        visitSurfaces(deriveStyleSheet(theme),
                      [](const std::string& path, const SurfaceStyle& surface, const ShapeKind*) {
                          EXPECT_FALSE(surface.materialEnabled) << path;
                      });
}

TEST(DerivedSurfaces, TakeTheThemesLightMappingAndFinish)
{
    Theme theme = themeIn(SurfaceMode::Sculpted3d);
    theme.materials.materialLightAngle = 300;
    theme.materials.uvMapping = MappingSpace::Global;
    theme.materials.gradientKind = GradientKind::Radial;
    theme.materials.finish = MaterialFinish::Etched;
    const SurfaceStyle surface = deriveStyleSheet(theme).find<PanelStyle>(kDefaultVariant).surface;
    EXPECT_EQ(surface.materialLightAngle, 300);
    EXPECT_EQ(surface.uvMapping, MappingSpace::Global);
    EXPECT_EQ(surface.gradientKind, GradientKind::Radial);
    EXPECT_EQ(surface.finish, MaterialFinish::Etched);
}

// An inner shadow on a large rounded surface would darken its cut-off corners.
TEST(DerivedSurfaces, HaveNoInnerShadowWhereTheyAreLarge)
{
    for (const SurfaceMode mode : kModes) {
        const StyleSheet sheet = deriveStyleSheet(themeIn(mode));
        const SurfaceStyle* const large[] = {
            &sheet.find<PanelStyle>(kDefaultVariant).surface,
            &sheet.find<PanelStyle>(L"glass").surface,
            &sheet.find<CardStyle>(kDefaultVariant).surface,
            &sheet.find<PopupStyle>(kDefaultVariant).surface,
            &sheet.find<PopupStyle>(L"danger").surface,
            &sheet.find<ListBoxStyle>(kDefaultVariant).surface,
            &sheet.find<TableListStyle>(kDefaultVariant).surface,
            &sheet.find<RichTextStyle>(kDefaultVariant).surface,
            &sheet.find<SelectBoxStyle>(kDefaultVariant).dropdownSurface,
            &sheet.find<DateInputStyle>(kDefaultVariant).popupSurface,
            &sheet.find<MenuBarStyle>(kDefaultVariant).popupSurface,
        };
        for (const SurfaceStyle* surface : large)
            EXPECT_FALSE(surface->showInnerShadow) << static_cast<int>(mode);
    }
}

TEST(DerivedSurfaces, HaveTheShapesOfTheirRecordsAndSmallNoiseSeeds)
{
    for (const SurfaceMode mode : kModes) {
        visitSurfaces(deriveStyleSheet(themeIn(mode)),
                      [](const std::string& path, const SurfaceStyle& surface, const ShapeKind* shape) {
                          EXPECT_TRUE(!shape || surface.shape == *shape) << path;
                          EXPECT_LT(surface.noiseSeed, 1U << 16) << path;
                      });
    }
}

TEST(DerivedSurfaces, OfTheCleanModeLookLikeTheSystems)
{
    const StyleSheet sheet = deriveStyleSheet(themeIn(SurfaceMode::WindowsClean));
    const auto& button = sheet.find<ButtonStyle>(kDefaultVariant);
    EXPECT_EQ(button.shape, ShapeKind::RoundedRect);
    EXPECT_TRUE(button.surface.normal.showOutline);
    // The slightly darker bottom edge.
    EXPECT_TRUE(button.surface.normal.showShadow);
    EXPECT_EQ(button.surface.normal.shadowOffsetY, 1);
    EXPECT_LT(button.surface.normal.shadowOpacity, 32);
    EXPECT_EQ(sheet.find<ButtonStyle>(L"primary").surface.normal.fill, Theme{}.accent);
    EXPECT_FALSE(sheet.find<PopupStyle>(kDefaultVariant).header.drawFill);
    const auto& bar = sheet.find<ChromeTitleBarStyle>(kDefaultVariant);
    EXPECT_EQ(bar.buttonWidth, 46);
    EXPECT_EQ(bar.buttonHeight, 32);
    EXPECT_EQ(bar.rightMargin, 0);
}

TEST(DerivedSurfaces, SetTextInTheThemesFonts)
{
    Theme theme = themeIn(SurfaceMode::Flat2d);
    theme.uiFont.family = L"Corbel";
    theme.uiFont.pointSize = 11;
    theme.uiFont.weight = 400;
    theme.monoFont.family = L"Lucida Console";
    const StyleSheet sheet = deriveStyleSheet(theme);
    EXPECT_EQ(sheet.find<TextStyle>(kDefaultVariant).family, L"Corbel");
    EXPECT_EQ(sheet.find<TextStyle>(kDefaultVariant).pointSize, 11);
    EXPECT_GT(sheet.find<TextStyle>(L"title").weight, 400);
    EXPECT_EQ(sheet.find<TextStyle>(L"mono").family, L"Lucida Console");
    EXPECT_GT(sheet.find<PopupStyle>(kDefaultVariant).titleText.pointSize, 11);
    // A caption in the label's style stands in 24 pixels: 1.33 times its size and two for luck.
    EXPECT_LE(sheet.find<TextStyle>(L"title").pointSize * 96 / 72 * 4 / 3 + 2, 24);

    theme.uiFont.weight = 900;
    theme.uiFont.pointSize = 1;
    const StyleSheet heavy = deriveStyleSheet(theme);
    EXPECT_EQ(heavy.find<TextStyle>(L"title").weight, 900);
    EXPECT_GE(heavy.find<StatusChipStyle>(kDefaultVariant).text.pointSize, 1);
}

} // namespace
} // namespace vela
