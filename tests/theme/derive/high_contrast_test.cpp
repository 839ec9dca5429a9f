#include "vela/theme/derive/high_contrast.h"

#include "tests/support/skin_text.h"
#include "tools/showcase_content/contrast_themes.h"
#include "vela/render/layers/paint_plan.h"
#include "vela/theme/checks/contrast_checks.h"
#include "vela/theme/fields/fields.h"
#include "vela/theme/skins/skin_catalog.h"
#include "vela/theme/skins/style_sections.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace vela {
namespace {

using showcase::ContrastTheme;
using showcase::kContrastThemes;

// Everything that must not be seen in the mode, switched on.
SkinDefinition lavishSkin()
{
    return skinOf(R"({'id': 'lavish', 'surfaceMode': 'sculpted3d',
        'materials': {'surface': 'obsidian_relief', 'control': 'layered_glass', 'accent': 'gemstone'},
        'styles': {
          'button': {'default': {'surface': {'glow': '#123456', 'showGlow': true, 'showShadow': true,
                                             'useNoise': true, 'image': 'plate.png'}, 'shape': 'hexagon'},
                     'shiny': {'text': {'color': '#FF0000', 'pointSize': 17}}},
          'panel': {'default': {'padding': 33, 'surface': {'image': 'ground.png', 'useSkinAlphaHitTest': true}}},
          'popup': {'default': {'actionWidth': 211, 'showShadow': true}}}})");
}

class SystemColorsOnly {
public:
    explicit SystemColorsOnly(const SystemColors& c)
        : allowed_{c.window,    c.windowText,    c.hotlight,   c.grayText,
                   c.highlight, c.highlightText, c.buttonFace, c.buttonText}
    {
    }

    void check(const FieldTable& table, const void* record, const std::string& path) const
    {
        if (&table == &Fields<SurfaceStyle>::kTable)
            return surface(*static_cast<const SurfaceStyle*>(record), path);
        const auto* const base = static_cast<const std::byte*>(record);
        for (const Field& field : table.fields) {
            const std::string name = path + "." + field.keys;
            if (field.kind == FieldKind::ColorValue)
                color(*reinterpret_cast<const Color*>(base + field.offset), name);
            const int parts = field.kind == FieldKind::Record   ? 1
                              : field.kind == FieldKind::States ? kVisualStateCount
                                                                : 0;
            for (int i = 0; i < parts; ++i)
                check(tableOf(field),
                      base + field.offset + static_cast<std::size_t>(i) * tableOf(field).recordSize, name);
        }
    }

private:
    void color(Color drawn, const std::string& name) const
    {
        EXPECT_NE(std::find(std::begin(allowed_), std::end(allowed_), drawn), std::end(allowed_)) << name;
    }
    void surface(const SurfaceStyle& style, const std::string& name) const
    {
        if (style.drawFill)
            color(style.fill, name + " fill");
        if (style.drawBorder)
            color(style.border, name + " border");
        if (style.showOutline)
            color(style.outline, name + " outline");
        color(style.glow, name + " focus ring");
        for (const PaintStep& step : paintPlan(style, {0, 0, 200, 100}, std::nullopt, BitmapCover::None))
            EXPECT_TRUE(step.layer == SurfaceLayer::Fill || step.layer == SurfaceLayer::Border ||
                        step.layer == SurfaceLayer::Outline)
                << name << " has layer " << static_cast<int>(step.layer);
        EXPECT_FALSE(style.image || style.geometry) << name;
    }

    Color allowed_[8];
};

TEST(HighContrast, IsDrawnInTheUsersColoursAlone)
{
    for (const ContrastTheme& stock : kContrastThemes) {
        StyleSheet sheet = buildStyleSheet(lavishSkin());
        applyHighContrast(sheet, stock.colors);
        const SystemColorsOnly only(stock.colors);
        sheet.forEachTable([&]<class Record>(ControlKind kind, const VariantTable<Record>& table) {
            for (const auto& variant : table)
                only.check(Fields<Record>::kTable, &variant.record,
                           narrowed(stock.name) + " " + std::to_string(static_cast<int>(kind)) + " " +
                               narrowed(variant.name));
        });
        EXPECT_FALSE(sheet.find<PopupStyle>(kDefaultVariant).showShadow);
        EXPECT_FALSE(sheet.find<TooltipStyle>(kDefaultVariant).showShadow);
    }
}

TEST(HighContrast, CanBeReadInEveryStockTheme)
{
    for (const ContrastTheme& stock : kContrastThemes) {
        StyleSheet sheet = buildStyleSheet(lavishSkin());
        applyHighContrast(sheet, stock.colors);
        const auto checks = contrastChecks(sheet);
        ASSERT_GT(checks.size(), 300u);
        for (const ContrastCheck& check : checks)
            EXPECT_TRUE(check.holds())
                << narrowed(stock.name) << ": kind " << static_cast<int>(check.kind) << " "
                << narrowed(check.variant) << " " << check.part << " " << check.reached;
    }
}

TEST(HighContrast, TellsTheStatesOfAButtonApart)
{
    for (const ContrastTheme& stock : kContrastThemes) {
        StyleSheet sheet = buildStyleSheet(builtInSkin());
        applyHighContrast(sheet, stock.colors);
        for (const auto& variant : sheet.table<ButtonStyle>()) {
            const ButtonStyle& style = variant.record;
            EXPECT_EQ(style.text.disabled.color, stock.colors.grayText);
            for (const VisualState state : {VisualState::Hot, VisualState::Pressed, VisualState::Disabled})
                EXPECT_FALSE(style.surface[state] == style.surface.normal &&
                             style.text[state].color == style.text.normal.color)
                    << narrowed(variant.name) << static_cast<int>(state);
            EXPECT_NE(style.surface.hot, style.surface.pressed) << narrowed(variant.name);
        }
        const auto& bar = sheet.find<ChromeTitleBarStyle>(kDefaultVariant);
        EXPECT_EQ(bar.closeHotSurface.fill, stock.colors.highlight);
        EXPECT_EQ(bar.closeHotColor, stock.colors.highlightText);
        EXPECT_EQ(bar.closePressedSurface.fill, stock.colors.highlightText);
        EXPECT_EQ(bar.closePressedColor, stock.colors.highlight);
    }
}

TEST(HighContrast, KeepsTheSkinsShapesFontsAndMeasures)
{
    StyleSheet sheet = buildStyleSheet(lavishSkin());
    applyHighContrast(sheet, kContrastThemes[0].colors);
    EXPECT_EQ(sheet.find<ButtonStyle>(L"default").surface.hot.shape, ShapeKind::Hexagon);
    EXPECT_EQ(sheet.find<ButtonStyle>(L"shiny").text.normal.pointSize, 17);
    EXPECT_EQ(sheet.find<PanelStyle>(L"default").padding, 33);
    EXPECT_EQ(sheet.find<PopupStyle>(L"default").actionWidth, 211);
}

} // namespace
} // namespace vela
